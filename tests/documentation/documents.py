"""Reads the fenced blocks of documents, and what stands for places in them."""

import re
from dataclasses import dataclass

KINDS = {"sh", "console", "bat", "checkout", "diff", "bundle", "mermaid", "cpp", "json", "text"}

# What a command begins with; no block that is merely shown may hold one.
COMMAND = re.compile(r"^\s*(\$ |> )?(hxahost (-|\w+\b(?!:))|scripts/\w|cmake -|ctest\b)", re.MULTILINE)


@dataclass
class Block:
    kind: str
    document: str
    line: int  # of the first line of its text, counted from 1
    text: str

    @property
    def name(self):
        return f"{self.document}:{self.line}"


def blocks_of(path, document):
    """The fenced blocks of a document; a fence that is not closed is an error."""
    blocks = []
    kind = None
    for number, line in enumerate(path.read_text(encoding="utf-8").split("\n"), 1):
        fence = re.match(r"^```(.*)$", line)
        if fence and kind is None:
            kind, start, lines = fence.group(1).strip(), number + 1, []
        elif fence:
            blocks.append(Block(kind, document, start, "\n".join(lines)))
            kind = None
        elif kind is not None:
            lines.append(line)
    if kind is not None:
        raise ValueError(f"{document}:{start}: the block is not closed")
    return blocks


def documents_of(root):
    """All documents of the tree: those for everybody, and those under docs/."""
    names = [path.name for path in root.glob("*.md")] + [f"docs/{path.name}" for path in (root / "docs").glob("*.md")]
    return sorted(names)


def matches(expected, actual):
    """Whether a text is the one that is shown: "..." stands for anything, on a line of its own also for lines."""
    parts = [re.escape(part) for part in expected.split("...")]
    return re.fullmatch(".*?".join(parts), actual, re.DOTALL) is not None


def steps_of(console):
    """The commands of a console block with what they print."""
    steps = []
    for line in console.split("\n"):
        if line.startswith("$ "):
            steps.append((line[2:], []))
        elif not steps:
            raise ValueError("output stands before the first command")
        else:
            steps[-1][1].append(line)
    return [(command, "\n".join(output)) for command, output in steps]
