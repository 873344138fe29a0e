"""What a query published, in one form whatever it was read from: a list of instances for each query."""

import datetime
import json
import re
from dataclasses import dataclass

SYSTEM = "KVRSG_ComputerSystem"
TIME = re.compile(r"\d{14}\.\d{6}[+-]\d{3}")


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
    """A text as XML holds it: XML cannot hold these characters."""
    return "".join(_replacement(ord(character), character) for character in text)


def _replacement(code, character):
    if code < 0x20 and character not in "\t\n\r":
        return chr(0x2400 + code)
    return "\ufffd" if code in (0xFFFE, 0xFFFF) else character


def without_nul(text):
    """A text as MOF holds it: a CIM string cannot contain U+0000."""
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


def machine_instance(name):
    """The machine as JSON would have it."""
    path = object_path(SYSTEM, [("CreationClassName", SYSTEM), ("Name", name)])
    return {"class": SYSTEM, "path": path, "properties": {"CreationClassName": SYSTEM, "Name": name}}


def unique(result):
    """The instances of each query, the machine first, with each path once; and the paths of what is left out."""
    first, queries, left_out = {}, [], []
    for query in result["queries"]:
        queries.append([])
        for instance in [machine_instance(result["machine"]), *query["instances"]]:
            kept = first.setdefault(replaced(instance["path"]), instance)
            if kept is instance:
                queries[-1].append(instance)
            elif kept["properties"] != instance["properties"]:
                left_out.append(instance["path"])
    return queries, left_out


def from_json(text, classes, substitute):
    """Queries from JSON, with the types that the classes declare; substitute is applied to every text. And the paths of
    what is left out."""
    result = json.loads(text)
    queries, left_out = unique(result)
    make = lambda instance: _instance(instance, result["machine"], classes, substitute)
    return [[make(instance) for instance in query] for query in queries], left_out


def _instance(instance, machine, classes, substitute):
    declared = classes[instance["class"]].properties
    values = dict(instance["properties"])
    own = {name.lower() for name in values}
    if not classes[instance["class"]].is_association and not any(name.startswith("system") for name in own):
        keys = {"SystemCreationClassName": SYSTEM, "SystemName": machine}
        values = {name: value for name, value in keys.items() if name.lower() in declared} | values
    properties = {}
    for name, value in values.items():
        kind = declared[name.lower()]
        properties[name] = (kind.type_name, kind.is_array, _value(value, kind, substitute))
    return Instance(instance["class"], substitute(instance["path"]), properties)


def is_time(text):
    """Whether CIM knows such a date and time."""
    try:
        datetime.datetime.strptime(text[:21], "%Y%m%d%H%M%S.%f")
    except ValueError:
        return False
    return bool(TIME.fullmatch(text))


def _value(value, kind, substitute):
    if kind.type_name == "datetime" and not is_time(value):
        return None
    if isinstance(value, list):
        return [_value(element, kind, substitute) for element in value]
    if not isinstance(value, str):
        return value
    return Reference(substitute(value)) if kind.type_name == "ref" else substitute(value)
