// Shows the text of tools. It becomes text nodes only; characters that are invisible or change the direction of the
// text are shown as escapes, as in the tables of the terminal.

const kUnsafeCharacters = new RegExp("[\\u0000-\\u0008\\u000b\\u000c\\u000e-\\u001f\\u007f-\\u009f\\u2028-\\u202e\\u2800" +
  "\\ufff9-\\ufffb\\ufffe\\uffff\\p{Default_Ignorable_Code_Point}]", "gu");
// No language uses more marks on one character; more are drawn over the lines above and below.
const kFurtherMarks = new RegExp("(?<=\\p{Mn}{4})\\p{Mn}", "gu");

const kLineCharacters = { "\t": "\\t", "\r": "\\r", "\n": "\\n" };

function escapedCharacter(character) {
  const code = character.codePointAt(0).toString(16);
  if (code.length > 4) return "\\U" + code.padStart(8, "0");
  return code.length <= 2 ? "\\x" + code.padStart(2, "0") : "\\u" + code.padStart(4, "0");
}

// Keeps tabs and line ends, for text that is shown as lines.
function visibleLines(text) {
  return text.replace(kUnsafeCharacters, escapedCharacter).replace(kFurtherMarks, escapedCharacter);
}

// One line, without the white space at both ends.
function printable(text) {
  const inner = text.replace(/^[ \t\r\n]+|[ \t\r\n]+$/g, "");
  return visibleLines(inner).replace(/[\t\r\n]/g, (character) => kLineCharacters[character]);
}

// yyyymmddhhmmss.mmmmmmsutc, the offset in minutes; null for any other text.
function timeParts(text) {
  const found = /^(\d{4})(\d\d)(\d\d)(\d\d)(\d\d)(\d\d)\.(\d{6})([+-])(\d{3})$/.exec(text);
  if (!found) return null;
  const [, year, month, day, hour, minute, second, , sign, offset] = found;
  const twoDigits = (number) => String(number).padStart(2, "0");
  const zone = sign + twoDigits(Math.floor(Number(offset) / 60)) + ":" + twoDigits(Number(offset) % 60);
  return { date: `${year}-${month}-${day}`, clock: `${hour}:${minute}:${second}`, zone };
}

function readableTime(text) {
  const parts = timeParts(text);
  return parts ? `${parts.date} ${parts.clock} ${parts.zone}` : printable(text);
}

// Numbers in arrays are event codes, which manuals list in hexadecimal.
function codeText(element) {
  return typeof element === "number" ? "0x" + element.toString(16).padStart(8, "0") : printable(String(element));
}

function valueText(value) {
  if (value === null || value === undefined) return "";
  if (Array.isArray(value)) return value.map(codeText).join(", ");
  return readableTime(String(value));
}

function cut(text, length) {
  const characters = Array.from(text);
  return characters.length <= length ? text : characters.slice(0, length - 1).join("") + "\u2026";
}

function counted(count, one, many) {
  return `${count.toLocaleString("en-US")} ${count === 1 ? one : many}`;
}

// Numbers within texts are sorted by value: "ID 9" comes before "ID 10".
const kCollator = new Intl.Collator("en", { numeric: true, sensitivity: "base" });

function compareTexts(one, other) {
  return kCollator.compare(one, other);
}
