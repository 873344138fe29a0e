"""A small MOF compiler: the grammar of DSP0004, annex A, as far as classes and instances of plain properties go. One
thing is taken from later editions: an array may be empty. Anything else that is not in that grammar, is not declared, or
does not fit its type is an error; so is an instance without one of its keys, a path that is there twice, a reference to
what is not there, and a class that changes what it inherits."""

import re
from dataclasses import dataclass, field

from published import Instance, Reference, is_time, object_path

TOKEN = re.compile(
    r'(?P<space>\s+|//[^\n]*|/\*.*?\*/)|(?P<string>"(?:[^"\\\n\r]|\\.)*")|(?P<number>[+-]?\d+)'
    r"|(?P<word>[A-Za-z_]\w*)|(?P<alias>\$[A-Za-z_]\w*)|(?P<pragma>#pragma\b)|(?P<sign>[][{}(),;:=])",
    re.DOTALL,
)
ESCAPE = re.compile(r"\\(?:[xX]([0-9a-fA-F]{1,4})|(.))", re.DOTALL)
ESCAPED = {"b": "\b", "t": "\t", "n": "\n", "f": "\f", "r": "\r", '"': '"', "'": "'", "\\": "\\"}
HIGHEST = {"uint16": 0xFFFF, "uint32": 0xFFFFFFFF}
# Format, the body that defines it, and what is mapped.
MAPPING = re.compile(r"[A-Za-z]\w*\.[A-Za-z]\w*\|.+", re.DOTALL)
KEY = re.compile(r'([A-Za-z_]\w*)=(?:(\d+)|"((?:[^"\\]|\\["\\])*)")(,|$)', re.DOTALL)
FLAVORS = ("enableoverride", "disableoverride", "restricted", "tosubclass", "translatable")


@dataclass
class Property:
    name: str
    type_name: str
    is_array: bool
    is_key: bool
    referenced: str
    qualifiers: dict


@dataclass
class Class:
    name: str
    is_association: bool
    qualifiers: dict
    superclass: str = ""
    properties: dict = field(default_factory=dict)  # by name in lower case, inherited ones too


@dataclass
class Qualifier:
    type_name: str
    is_array: bool
    scopes: list


class MofError(ValueError):
    pass


class Compiler:
    """Keeps what is declared from one text to the next."""

    def __init__(self):
        self.qualifiers = {}
        self.classes = {}  # by their names as declared
        self.instances = []
        self.namespace = ""
        self.aliases = {}

    def compile(self, text):
        self.tokens = list(tokens_of(text))
        self.aliases = {}
        paths = {instance.path for instance in self.instances}
        before = len(self.instances)
        while self.kind() != "end":
            if self.kind() == "pragma":
                self.pragma()
            elif self.accept("qualifier"):
                self.qualifier_declaration()
            elif self.accept("instance"):
                self.instance()
            else:
                self.class_declaration()
        for instance in self.instances[before:]:
            if instance.path in paths:
                raise MofError(f"{instance.path} is there twice")
            paths.add(instance.path)
        for instance in self.instances[before:]:
            for _, _, value in instance.properties.values():
                if isinstance(value, Reference) and value.path not in paths:
                    raise MofError(f"{instance.path} refers to what is not there: {value.path}")

    # #pragma namespace("root/cimv2")
    def pragma(self):
        self.take("pragma")
        self.expect("namespace")
        self.expect("(")
        self.namespace = self.strings()
        self.expect(")")

    def kind(self):
        return self.tokens[-1][0]

    def take(self, kind):
        if self.kind() != kind:
            raise MofError(f"{kind} expected at {self.tokens[-1]}")
        return self.tokens.pop()[1]

    def accept(self, text):
        """Takes a keyword or a sign at the current place."""
        kind, found = self.tokens[-1]
        if kind not in ("word", "sign") or found.lower() != text:
            return False
        self.tokens.pop()
        return True

    def expect(self, text):
        if not self.accept(text):
            raise MofError(f"{text} expected at {self.tokens[-1]}")

    def brackets(self):
        if not self.accept("["):
            return False
        self.expect("]")
        return True

    # Qualifier NAME : type = default, Scope(...), Flavor(...);
    def qualifier_declaration(self):
        name = self.take("word").lower()
        if name in self.qualifiers:
            raise MofError(f"qualifier {name} is declared twice")
        self.expect(":")
        type_name = self.take("word").lower()
        is_array = self.brackets()
        if self.accept("="):
            self.constant()
        self.expect(",")
        self.expect("scope")
        scopes = self.words_in_parentheses()
        if self.accept(","):
            self.expect("flavor")
            for flavor in self.words_in_parentheses():
                if flavor not in FLAVORS:
                    raise MofError(f"no flavor: {flavor}")
        self.expect(";")
        self.qualifiers[name] = Qualifier(type_name, is_array, scopes)

    def words_in_parentheses(self):
        self.expect("(")
        words = [self.take("word").lower()]
        while self.accept(","):
            words.append(self.take("word").lower())
        self.expect(")")
        return words

    # [Qualifier, Qualifier(value), Qualifier {value, value}]
    def qualifier_list(self):
        qualifiers = {}
        if not self.accept("["):
            return qualifiers
        while True:
            name = self.take("word").lower()
            if name not in self.qualifiers or name in qualifiers:
                raise MofError(f"qualifier {name} is not declared, or occurs twice")
            qualifiers[name] = self.qualifier_value(name)
            if not self.accept(","):
                break
        self.expect("]")
        return qualifiers

    def qualifier_value(self, name):
        declared = self.qualifiers[name]
        value = True
        if self.accept("("):
            value = self.constant()
            self.expect(")")
        elif self.tokens[-1] == ("sign", "{"):
            value = self.array()
        if declared.is_array != isinstance(value, list):
            raise MofError(f"qualifier {name}: {value}")
        for each in value if declared.is_array else [value]:
            if not isinstance(each, {"string": str, "boolean": bool}[declared.type_name]):
                raise MofError(f"qualifier {name}: {value}")
        return value

    def check_scopes(self, qualifiers, scope):
        for name in qualifiers:
            if not {scope, "any"} & set(self.qualifiers[name].scopes):
                raise MofError(f"qualifier {name} on a {scope}")

    def class_declaration(self):
        qualifiers = self.qualifier_list()
        is_association = qualifiers.get("association", False)
        self.check_scopes(qualifiers, "association" if is_association else "class")
        self.expect("class")
        declared = Class(self.take("word"), is_association, qualifiers)
        if declared.name.lower() in (name.lower() for name in self.classes):
            raise MofError(f"class {declared.name} is declared twice")
        if self.accept(":"):
            declared.superclass = self.take("word")
            declared.properties.update(self.classes[declared.superclass].properties)
            if is_association != self.classes[declared.superclass].is_association:
                raise MofError(f"class {declared.name} cannot be derived from {declared.superclass}")
        self.expect("{")
        while not self.accept("}"):
            self.property_declaration(declared)
        self.expect(";")
        keys = [each for each in declared.properties.values() if each.is_key]
        references = [each for each in declared.properties.values() if each.referenced]
        is_abstract = qualifiers.get("abstract", False)
        if not (keys or is_abstract) or is_association != (len(references) >= 2):
            raise MofError(f"class {declared.name}: keys or references")
        inherited = self.classes[declared.superclass].properties.values() if declared.superclass else []
        inherited_keys = [each.name.lower() for each in inherited if each.is_key]
        if inherited_keys and inherited_keys != [each.name.lower() for each in keys]:
            raise MofError(f"class {declared.name} adds a key to those that it inherits")
        self.classes[declared.name] = declared

    def property_declaration(self, declared):
        qualifiers = self.qualifier_list()
        type_name = self.take("word")
        referenced = ""
        if self.accept("ref"):
            referenced, type_name = type_name, "ref"
            if referenced not in self.classes:
                raise MofError(f"reference to {referenced}, which is not declared")
        elif type_name not in ("string", "datetime", *HIGHEST):
            raise MofError(f"no type: {type_name}")
        self.check_scopes(qualifiers, "reference" if referenced else "property")
        name = self.take("word")
        is_array = self.brackets()
        is_key = qualifiers.get("key", False)
        if is_array and (is_key or referenced):
            raise MofError(f"property {declared.name}.{name}")
        if not all(MAPPING.fullmatch(each) for each in qualifiers.get("mappingstrings", [])):
            raise MofError(f"mapping strings of {declared.name}.{name}")
        here = Property(name, type_name, is_array, is_key, referenced, qualifiers)
        self.check_override(declared, here)
        declared.properties[name.lower()] = here
        self.expect(";")

    def check_override(self, declared, here):
        """What the superclass has is declared again with Override alone, as the same type, to a class of the same kind,
        and as a key if it was one."""
        place = f"{declared.name}.{here.name}"
        there = declared.properties.get(here.name.lower())
        if (there is None) != ("override" not in here.qualifiers):
            raise MofError(f"{place} is declared twice, or overrides nothing")
        if there is None:
            return
        inherited = self.classes[declared.superclass].properties if declared.superclass else {}
        if inherited.get(here.name.lower()) is not there or here.qualifiers["override"] != there.name:
            raise MofError(f"{place} is declared twice")
        if (here.type_name, here.is_array) != (there.type_name, there.is_array) or there.is_key and not here.is_key:
            raise MofError(f"{place} changes what it overrides")
        if there.referenced and not self.is_a(here.referenced, there.referenced):
            raise MofError(f"{place} refers to what is no {there.referenced}")

    def is_a(self, name, superclass):
        while name and name != superclass:
            name = self.classes[name].superclass
        return bool(name)

    # instance of CLASS as $ALIAS { name = value; };
    def instance(self):
        self.expect("of")
        declared = self.classes[self.take("word")]
        alias = self.take("alias") if self.accept("as") else ""
        properties = {}
        self.expect("{")
        while not self.accept("}"):
            name = self.take("word")
            kind = declared.properties[name.lower()]
            if name.lower() in (each.lower() for each in properties):
                raise MofError(f"{declared.name}.{name} is set twice")
            self.expect("=")
            properties[name] = (kind.type_name, kind.is_array, self.initializer(kind))
            self.expect(";")
        self.expect(";")
        self.instances.append(Instance(declared.name, path_of(declared, properties), properties))
        if alias in self.aliases or declared.qualifiers.get("abstract"):
            raise MofError(f"instance of {declared.name} as {alias}")
        if alias:
            self.aliases[alias] = self.instances[-1]

    def initializer(self, kind):
        if kind.is_array and self.tokens[-1] == ("sign", "{"):
            return [self.fitting(value, kind) for value in self.array()]
        if self.kind() == "alias":
            referred = self.aliases[self.take("alias")]
            if kind.type_name != "ref" or not self.is_a(referred.class_name, kind.referenced):
                raise MofError(f"{referred.path} does not fit {kind.name}")
            return Reference(referred.path)
        value = self.constant()
        if kind.is_array and value is not None:
            raise MofError(f"{value!r} is no array")
        return self.fitting(value, kind)

    def fitting(self, value, kind):
        if value is None:
            return None
        if kind.type_name in HIGHEST:
            fits = isinstance(value, int) and not isinstance(value, bool) and 0 <= value <= HIGHEST[kind.type_name]
        else:
            fits = isinstance(value, str) and (kind.type_name != "datetime" or is_time(value))
        if not fits:
            raise MofError(f"{value!r} is no {kind.type_name}")
        if kind.type_name != "ref":
            return value
        self.check_path(value, kind.referenced)
        return Reference(value)

    def check_path(self, path, class_name):
        """An object path names the class that the reference is declared with, and its keys and no others."""
        name, _, keys = path.partition(".")
        if name != class_name:
            raise MofError(f"{path} does not refer to {class_name}")
        names, position = [], 0
        while position < len(keys):
            key = KEY.match(keys, position)
            if key is None:
                raise MofError(f"{path} is no object path")
            names.append(key[1].lower())
            position = key.end()
        declared = self.classes[class_name].properties
        if not all(each in declared and declared[each].is_key for each in names) or names != sorted(set(names)):
            raise MofError(f"{path} names what is no key, or names it twice")

    def array(self):
        self.expect("{")
        values = []
        while not self.accept("}"):
            if values:
                self.expect(",")
            values.append(self.constant())
        return values

    def constant(self):
        kind, text = self.tokens[-1]
        if kind == "number":
            self.tokens.pop()
            return int(text)
        if kind == "string":
            return self.strings()
        word = self.take("word").lower()
        if word not in ("null", "true", "false"):
            raise MofError(f"no value: {word}")
        return {"null": None, "true": True, "false": False}[word]

    def strings(self):
        parts = []
        while self.kind() == "string":
            parts.append(unescaped(self.take("string")[1:-1]))
        return "".join(parts)


def tokens_of(text):
    """Last one first, so that they can be taken off the end."""
    tokens, position = [], 0
    while position < len(text):
        match = TOKEN.match(text, position)
        if match is None:
            raise MofError(f"no token: {text[position:position + 80]!r}")
        if match.lastgroup != "space":
            tokens.append((match.lastgroup, match[0]))
        position = match.end()
    return [("end", ""), *reversed(tokens)]


def unescaped(text):
    def character(match):
        return chr(int(match[1], 16)) if match[1] else ESCAPED[match[2]]

    return ESCAPE.sub(character, text)


def path_of(declared, properties):
    values = {name.lower(): value for name, (_, _, value) in properties.items()}
    keys = [(each.name, values.get(name)) for name, each in declared.properties.items() if each.is_key]
    if any(value is None for _, value in keys):
        raise MofError(f"instance of {declared.name} without one of its keys: {keys}")
    return object_path(declared.name, sorted(keys, key=lambda key: key[0]))
