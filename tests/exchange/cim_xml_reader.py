"""Reads a CIM-XML declaration document with the parser that comes with Python, and takes nothing for granted."""

import xml.etree.ElementTree as ElementTree

from published import Instance, Reference, object_path

INTEGERS = {"uint16": 0xFFFF, "uint32": 0xFFFFFFFF}


def read(path):
    """The instances of each query."""
    root = ElementTree.parse(path).getroot()
    expect(root.tag == "CIM" and set(root.attrib) == {"CIMVERSION", "DTDVERSION"}, root)
    declaration = only_child(root, "DECLARATION")
    return [[read_object(element) for element in group] for group in children(declaration, "DECLGROUP.WITHPATH")]


def read_object(element):
    expect(element.tag == "VALUE.OBJECTWITHLOCALPATH" and len(element) == 2, element)
    instance = element[1]
    expect(instance.tag == "INSTANCE" and set(instance.attrib) == {"CLASSNAME"}, instance)
    path = read_path(element[0])
    class_name = instance.attrib["CLASSNAME"]
    expect(path.startswith(class_name + ".") or path == class_name, instance)
    properties = {}
    for each in instance:
        name = each.attrib["NAME"]
        expect(name not in properties, each)
        properties[name] = read_property(each)
    return Instance(class_name, path, properties)


def read_property(element):
    if element.tag == "PROPERTY.REFERENCE":
        value = read_reference(only_child(element, "VALUE.REFERENCE")) if len(element) else None
        expect(value is None or value.path.startswith(element.attrib["REFERENCECLASS"] + "."), element)
        return ("ref", False, value)
    type_name = element.attrib["TYPE"]
    if element.tag == "PROPERTY.ARRAY":
        if len(element) == 0:
            return (type_name, True, None)
        return (type_name, True, [read_element(each, type_name) for each in only_child(element, "VALUE.ARRAY")])
    expect(element.tag == "PROPERTY", element)
    return (type_name, False, read_value(only_child(element, "VALUE"), type_name) if len(element) else None)


def read_element(element, type_name):
    return None if element.tag == "VALUE.NULL" else read_value(element, type_name)


def read_value(element, type_name):
    expect(element.tag == "VALUE" and len(element) == 0 and not element.attrib, element)
    return read_text(element, type_name)


def read_text(element, type_name):
    text = element.text or ""
    if type_name not in INTEGERS:
        expect(type_name in ("string", "datetime"), element)
        return text
    expect(text.isdecimal() and int(text) <= INTEGERS[type_name], element)
    return int(text)


def read_path(element):
    expect(element.tag == "LOCALINSTANCEPATH" and len(element) == 2, element)
    parts = [part.attrib["NAME"] for part in children(element[0], "NAMESPACE")]
    expect(element[0].tag == "LOCALNAMESPACEPATH" and parts == ["root", "cimv2"], element[0])
    name = element[1]
    expect(name.tag == "INSTANCENAME", name)
    return object_path(name.attrib["CLASSNAME"], [read_key(key) for key in children(name, "KEYBINDING")])


def read_key(element):
    expect(len(element) == 1, element)
    value = element[0]
    if value.tag == "VALUE.REFERENCE":
        return (element.attrib["NAME"], read_reference(value))
    type_name = value.attrib["TYPE"]
    expected = "numeric" if type_name in INTEGERS else "string"
    expect(value.tag == "KEYVALUE" and value.attrib["VALUETYPE"] == expected, value)
    return (element.attrib["NAME"], read_text(value, type_name))


def read_reference(element):
    return Reference(read_path(only_child(element, "LOCALINSTANCEPATH")))


def only_child(element, tag):
    expect(len(element) == 1 and element[0].tag == tag, element)
    return element[0]


def children(element, tag):
    expect(all(child.tag == tag for child in element), element)
    return list(element)


def expect(condition, element):
    if not condition:
        raise ValueError("unexpected " + ElementTree.tostring(element, encoding="unicode")[:300])
