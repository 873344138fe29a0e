"""What a query published, in one form whatever it was read from: a list of instances for each query."""

import json
from dataclasses import dataclass


@dataclass(frozen=True)
class Reference:
    """An object path, Class.Key="value",... with its keys in order of name."""

    path: str


@dataclass
class Instance:
    class_name: str
    path: str
    properties: dict  # name, as it was set -> (type of its elements, whether it is an array, value)


def replaced(text):
    """What stands in XML for a text: it has no place for these characters."""
    return "".join(_replacement(ord(character), character) for character in text)


def _replacement(code, character):
    if code < 0x20 and character not in "\t\n\r":
        return chr(0x2400 + code)
    return "\ufffd" if code in (0xFFFE, 0xFFFF) else character


def without_nul(text):
    """What stands in MOF for a text: CIM has no string with U+0000 in it."""
    return text.replace("\0", "\u2400")


def object_path(class_name, keys):
    """The path from its keys, [(name, value)]: numbers bare, everything else in quotes."""
    separator, path = ".", class_name
    for name, value in keys:
        path += f"{separator}{name}={value if isinstance(value, int) else quoted(value)}"
        separator = ","
    return path


def quoted(value):
    text = value.path if isinstance(value, Reference) else value
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def from_json(text, classes, substitute):
    """Queries from JSON, with the types that the classes declare; substitute is applied to every text."""
    return [
        [_instance(instance, classes, substitute) for instance in query["instances"]]
        for query in json.loads(text)["queries"]
    ]


def _instance(instance, classes, substitute):
    declared = classes[instance["class"]].properties
    properties = {}
    for name, value in instance["properties"].items():
        kind = declared[name.lower()]
        properties[name] = (kind.type_name, kind.is_array, _value(value, kind, substitute))
    return Instance(instance["class"], substitute(instance["path"]), properties)


def _value(value, kind, substitute):
    if isinstance(value, list):
        return [_value(element, kind, substitute) for element in value]
    if not isinstance(value, str):
        return value
    return Reference(substitute(value)) if kind.type_name == "ref" else substitute(value)
