"""Reads the fenced blocks of documents, and the comments that say how to test them."""

import re
from dataclasses import dataclass

LANGUAGES = {"sh", "console", "bat", "diff", "mermaid", "cpp", "json", "text"}

# What a comment above a block may say of its test, and the language of such a block.
INSTRUCTIONS = {"checkout": "sh", "root": "sh", "administrator": "bat", "bundle": "text"}

# The beginning of a command; a block that is only shown must not contain one.
COMMAND = re.compile(r"^\s*(\$ |> )?(hxahost($| -| \w+\b(?!:))|scripts/\w|cmake -|ctest\b)", re.MULTILINE)


@dataclass
class Block:
    kind: str  # its instruction, or its language where it has none
    document: str
    line: int  # of the first line of its text, counted from 1
    text: str

    @property
    def name(self):
        return f"{self.document}:{self.line}"


def kind_of(place, language, line_above):
    """How a block is tested; an unknown language or instruction is an error."""
    if language not in LANGUAGES:
        raise ValueError(f'{place}: "{language}" is not a language of blocks')
    comment = re.fullmatch(r"<!-- (.*) -->", line_above)
    if comment is None:
        return language
    if INSTRUCTIONS.get(comment.group(1)) != language:
        raise ValueError(f'{place}: "{comment.group(1)}" is not an instruction for a block of {language}')
    return comment.group(1)


def blocks_of(path, document):
    """The fenced blocks of a document; a fence that is not closed is an error."""
    blocks = []
    kind = None
    above = ""
    for number, line in enumerate(path.read_text(encoding="utf-8").split("\n"), 1):
        fence = re.match(r"^```(.*)$", line)
        if fence and kind is None:
            kind, start, lines = kind_of(f"{document}:{number}", fence.group(1).strip(), above), number + 1, []
        elif fence:
            blocks.append(Block(kind, document, start, "\n".join(lines)))
            kind = None
        elif kind is not None:
            lines.append(line)
        above = line
    if kind is not None:
        raise ValueError(f"{document}:{start}: the block is not closed")
    return blocks


def documents_of(root):
    """All documents of the tree: those for everybody, and those under docs/."""
    names = [path.name for path in root.glob("*.md")] + [f"docs/{path.name}" for path in (root / "docs").glob("*.md")]
    return sorted(names)


def matches(expected, actual):
    """Whether a text is the one that is shown: "..." matches anything, on a line of its own also lines."""
    parts = [re.escape(part) for part in expected.split("...")]
    return re.fullmatch(".*?".join(parts), actual, re.DOTALL) is not None


def steps_of(console):
    """The commands of a console block with what they print."""
    steps = []
    for line in console.split("\n"):
        if line.startswith("$ "):
            steps.append((line[2:], []))
        elif not steps:
            raise ValueError("output precedes the first command")
        else:
            steps[-1][1].append(line)
    return [(command, "\n".join(output)) for command, output in steps]
