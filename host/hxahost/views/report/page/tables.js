// Tables that sort and filter. Rows are kept as texts; of a long table only the first rows become elements until
// somebody asks for the others, or prints.

const kMostRows = 2500;

// Paper has no room for more columns side by side: each row is printed as a block of its own.
const kMostPrintedColumns = 14;

// columns: {title, cell}; cell returns {text, node} for an object, node if more than text is shown.
class SortedTable {
  constructor(caption, columns, objects, most = kMostRows) {
    this.rows = objects.map((object) => columns.map((column) => column.cell(object)));
    const shown = columns.map((_, index) => index).filter((index) => this.rows.some((row) => row[index].text !== ""));
    this.columns = shown.map((index) => columns[index]);
    this.rows = this.rows.map((row) => shown.map((index) => row[index]));
    this.lowered = this.rows.map((row) => row.map((cell) => cell.text.toLowerCase()).join("\n"));
    this.caption = caption;
    this.most = most;
    this.sortColumn = -1;
    this.isDescending = false;
    this.order = this.rows.map((_, index) => index);
    this.element = this.build();
    this.refill();
    // The filter's line is as wide as the table may be, and its height does not depend on the table.
    new ResizeObserver(() => this.fit()).observe(this.input.closest(".tools"));
  }

  build() {
    this.heads = this.columns.map((column, index) => this.buildHead(column, index));
    this.body = make("tbody", { role: "rowgroup" });
    this.count = make("output", { class: "count" });
    this.input = make("input", { type: "search", autocomplete: "off", spellcheck: "false" });
    this.input.addEventListener("input", () => this.refill());
    this.more = make("button", { type: "button", class: "more" });
    this.more.addEventListener("click", () => this.showAll());
    const isWide = this.columns.length > kMostPrintedColumns;
    const table = make("table", { role: "table", class: isWide ? "wide" : null },
      make("caption", {}, make("span", { class: "unseen" }, this.caption)),
      make("thead", { role: "rowgroup" }, make("tr", { role: "row" }, ...this.heads)), this.body);
    return make("div", { class: "sorted-table" },
      make("div", { class: "tools" },
        make("label", {}, "Filter ", make("span", { class: "unseen" }, this.caption + " "), this.input), this.count),
      make("div", { class: "table-box" }, table), this.more);
  }

  buildHead(column, index) {
    const button = make("button", { type: "button" }, column.title);
    button.addEventListener("click", () => this.sortBy(index));
    return make("th", { scope: "col", role: "columnheader" }, button);
  }

  sortBy(index) {
    this.isDescending = this.sortColumn === index && !this.isDescending;
    this.sortColumn = index;
    const sign = this.isDescending ? -1 : 1;
    const text = (row) => this.rows[row][index].sortText ?? this.rows[row][index].text;
    // Equal rows keep the order in which they were published.
    this.order.sort((one, other) => sign * compareTexts(text(one), text(other)) || one - other);
    this.heads.forEach((head, each) => {
      if (each === index) head.setAttribute("aria-sort", this.isDescending ? "descending" : "ascending");
      else head.removeAttribute("aria-sort");
    });
    this.refill();
  }

  refill() {
    const words = this.input.value.toLowerCase().split(/\s+/).filter((word) => word !== "");
    const found = this.order.filter((row) => words.every((word) => this.lowered[row].includes(word)));
    const shown = found.slice(0, this.most);
    const rows = document.createDocumentFragment();
    for (const row of shown) rows.append(make("tr", { role: "row" },
        ...this.rows[row].map((cell, index) => tableCell(cell, this.columns[index].title))));
    this.body.replaceChildren(rows);
    this.count.textContent = `${found.length.toLocaleString("en-US")} of ${counted(this.rows.length, "row", "rows")}`;
    this.more.hidden = shown.length === found.length;
    this.more.textContent = `Show the other ${counted(found.length - shown.length, "row", "rows")}`;
  }

  showAll() {
    this.most = Infinity;
    this.refill();
    this.fit();
  }

  // If the columns do not fit side by side, each row becomes a block.
  fit() {
    const table = this.body.parentElement;
    this.element.classList.remove("stacked");
    this.element.classList.toggle("stacked", table.offsetWidth > table.parentElement.clientWidth);
  }
}

// In rows shown as blocks each cell has its title, and empty cells are hidden. The roles keep the table readable for
// screen readers, as browsers would otherwise no longer treat it as a table.
function tableCell(cell, title) {
  return make("td", { role: "cell", "data-title": title, class: cell.text === "" ? "empty" : null },
      cell.node ? cell.node() : cell.text);
}

function textCell(property) {
  return (object) => ({ text: textOf(object, property) });
}

function stateCell(property) {
  return (object) => ({ text: textOf(object, property), node: () => stateBadge(object) });
}

function linkCell(object) {
  return { text: nameOf(object), node: () => linkTo(object, nameOf(object)) };
}

function columnFor(column, className) {
  const isState = kStateProperties[className] === column.property;
  const cell = isState ? stateCell(column.property) : textCell(column.property);
  return { title: column.title.charAt(0).toUpperCase() + column.title.slice(1), cell };
}

// A table of instances of some classes, with the columns that the program's own tables have.
function instanceTable(model, table) {
  const objects = table.classes.flatMap((className) => model.all(className));
  if (objects.length === 0) return null;
  const columns = [{ title: "Details", cell: linkCell },
      ...table.columns.map((column) => columnFor(column, table.classes[0]))];
  return newTable(table.heading, columns, objects);
}

// For classes that have no table of their own: all their properties.
function generalTable(model, className) {
  const objects = model.all(className);
  const names = new Set(objects.flatMap((object) => Object.keys(object.properties)));
  const columns = [...names].map((name) => ({ title: name, cell: textCell(name) }));
  return newTable(className, [{ title: "Details", cell: linkCell }, ...columns], objects);
}

function newTable(caption, columns, objects, most) {
  const table = new SortedTable(caption, columns, objects, most);
  report.tables.push(table);
  return table.element;
}
