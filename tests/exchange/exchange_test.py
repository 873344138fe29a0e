#!/usr/bin/env python3
"""CIM-XML and MOF as the program writes them, read back by readers that know nothing of it and held against its JSON.

Usage: exchange_test.py HXAHOST SAMPLE-MACHINE RESULTS.xml

Where ZENX_CIM_DTDS names a folder with document types of CIM-XML (*.dtd), the documents are held against them too.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import cim_xml_reader
import mof_reader
import published

HXAHOST, MACHINE, RESULTS = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
SAME = ["--machine-name", "SAMPLE", "--local-time", "20261121093000.000000+060"]
ENVIRONMENT = {**os.environ, "ZENX_OS_VERSION": "6.1", "ZENX_RAID_LOG_DIR": "raid-manager\\"}

# What somebody who wanted to harm a reader would write into a value. None has a line end: a tool's value is one line.
HOSTILE = {
    "quotes": b"\"double\" 'single'",
    "backslash": b"C:\\zenx\\ \\x41 \\",
    "end of character data": b"a]]>b",
    "script": b"<script>alert(1)</script>",
    "markup": b"</VALUE></PROPERTY><!-- --><![CDATA[ <?x ?>",
    "references": b"&amp; &#13; &lt &unknown;",
    "end of a statement": b'"; }; instance of KVRSG_zxRawData { Command = "',
    "comments": b"// /* */ #pragma include (\"x\")",
    "UTF-8": "Käse 磁盘 💾 \u202e\u2028\ufeff\ufffe\uffff".encode(),
    "ISO 8859-1": b"K\xe4se \xff",
    "every byte": bytes(byte for byte in range(256) if byte not in (0x0A, 0x0D)),
    "every character of one byte": bytes(byte for byte in range(128) if byte not in (0x0A, 0x0D)),
}
MEBIBYTE = b"<&\"\\" * (1 << 18)


def run(*arguments, machine=None):
    where = [] if machine is None else ["--directory", str(machine), *SAME]
    return subprocess.run([HXAHOST, *arguments, *where], env=ENVIRONMENT, check=True, capture_output=True).stdout


def query(folder, machine, form, *arguments):
    path = pathlib.Path(folder) / f"published.{form}"
    run("query", "--format", form, "--output", str(path), *arguments, machine=machine)
    return path


def compiled_schema():
    compiler = mof_reader.Compiler()
    compiler.compile(run("schema").decode())
    return compiler


class Exchange(unittest.TestCase):
    maxDiff = 4000

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def compare(self, machine, *arguments):
        """Every instance, property, type, value and reference of both forms with those of the JSON; their number."""
        compiler = compiled_schema()
        json = query(self.folder, machine, "json", *arguments).read_text("utf-8")
        expected = published.from_json(json, compiler.classes, published.replaced)
        document = query(self.folder, machine, "cim-xml", *arguments)
        self.check_document(document)
        self.hold_together(expected, cim_xml_reader.read(document))
        mof = query(self.folder, machine, "mof", *arguments).read_bytes().decode()
        compiler.compile(mof)
        expected = published.from_json(json, compiler.classes, published.without_nul)
        self.hold_together([[instance for one in expected for instance in one]], [compiler.instances])
        for heading in range(1, len(expected) + 1):
            self.assertEqual(mof.count(f"\n// Query {heading} of {len(expected)}.\n"), 1)
        return [len(one) for one in expected]

    def hold_together(self, expected, actual):
        self.assertEqual([len(one) for one in expected], [len(one) for one in actual])
        for there, here in zip((i for one in expected for i in one), (i for one in actual for i in one)):
            self.assertEqual(list(there.properties), list(here.properties), there.path[:300])
            for name in there.properties:
                same = there.properties[name] == here.properties[name]
                self.assertTrue(same, f"{there.path[:300]}: {name}: {str(here.properties[name])[:300]}")
            self.assertTrue(there == here, f"{there.path[:300]} is not {here.path[:300]}")

    def check_document(self, document):
        """Well-formed, and valid by every document type that is at hand."""
        self.xmllint("--noout", "--nonet", document)
        folder = os.environ.get("ZENX_CIM_DTDS")
        types = sorted(pathlib.Path(folder).glob("*.dtd")) if folder else []
        self.assertTrue(types or not folder, f"ZENX_CIM_DTDS={folder} has no document type")
        for each in types:
            self.xmllint("--noout", "--nonet", "--dtdvalid", each, document)

    def xmllint(self, *arguments):
        checked = subprocess.run(["xmllint", *arguments], capture_output=True, text=True)
        self.assertEqual((checked.returncode, checked.stderr), (0, ""), str(arguments))

    def hostile_machine(self):
        """A machine whose drives have the values as their identifiers, which are parts of paths and references."""
        machine = self.folder / "machine"
        shutil.copytree(MACHINE, machine)
        answers = machine / "zenx" / "answers"
        self.replace(answers / "qcmdrun" / "1" / "getconfig-al.txt", b"Device ID", list(HOSTILE.values()))
        self.replace(answers / "arcconf" / "1" / "getconfig-al.txt", b"Logical drive name", [MEBIBYTE])
        return machine

    def replace(self, answer, label, values):
        """Gives the first lines with the label the values, one each."""
        lines = answer.read_bytes().splitlines(keepends=True)
        places = [index for index, line in enumerate(lines) if label in line]
        self.assertGreaterEqual(len(places), len(values))
        for place, value in zip(places, values):
            lines[place] = lines[place].split(b":")[0] + b": " + value + b"\r\n"
        answer.write_bytes(b"".join(lines))

    def test_the_sample_machine_queried_twice(self):
        counts = self.compare(MACHINE, "--repeat", "2")
        self.assertEqual(len(counts), 2)
        self.assertGreater(counts[0], 200)

    def test_a_machine_without_utilities(self):
        empty = self.folder / "empty"
        empty.mkdir()
        self.assertEqual(self.compare(empty, "--class", "KVRSG_zxDiskDrive"), [0])

    def test_hostile_values(self):
        machine = self.hostile_machine()
        self.assertGreater(self.compare(machine)[0], 200)
        # They would prove nothing if the plug-in did not publish them.
        queries = cim_xml_reader.read(self.folder / "published.cim-xml")
        identifiers = [i.properties["DeviceID"][2] for i in queries[0] if i.class_name == "KVRSG_zxDiskDrive"]
        for name in ("end of a statement", "markup", "UTF-8"):
            value = published.replaced(HOSTILE[name].decode()).strip()
            self.assertTrue(any(value in each for each in identifiers), name)
        names = [i.properties["LogicalDriveName"][2] for i in queries[0] if i.class_name == "KVRSG_zxLogicalDisk"]
        self.assertIn(MEBIBYTE.decode(), names)

    def test_the_schema_has_every_class_with_keys_and_origins(self):
        compiler = compiled_schema()
        listed = [line.split()[0] for line in run("classes").decode().splitlines()]
        self.assertEqual(list(compiler.classes), listed)
        described = [each for each in compiler.classes.values() if "description" in each.qualifiers]
        self.assertEqual(len(described), len(listed))
        never_published = {"KVRSG_DiskGroup", "KVRSG_zxDriveInDiskGroup", "KVRSG_zxExtenInDiskGroup"}
        for declared in compiler.classes.values():
            for each in declared.properties.values():
                self.assertTrue(each.qualifiers.get("description"), f"{declared.name}.{each.name}")
                has_origin = bool(each.qualifiers.get("mappingstrings"))
                self.assertEqual(has_origin, declared.name not in never_published, f"{declared.name}.{each.name}")

    def test_the_readers_refuse_what_is_wrong(self):
        """A reader that takes everything would prove nothing."""
        schema = run("schema").decode()
        instance = 'instance of KVRSG_zxDiskGroup { CollectionID = "x"; };\n'
        link = 'instance of KVRSG_zxFirmwareOnController { Dependent = "KVRSG_zxFirmwareVersion.Name=\\"a\\""; };\n'
        wrong = {
            "unknown class": (instance, "KVRSG_zxDiskGroup", "KVRSG_Nothing"),
            "unknown property": (instance, "CollectionID", "Nothing"),
            "number for a text": (instance, '"x"', "7"),
            "array for a text": (instance, '"x"', '{"x"}'),
            "open string": (instance, '"x"', '"x'),
            "unknown escape": (instance, '"x"', '"\\q"'),
            "line end in a string": (instance, '"x"', '"\n"'),
            "no semicolon": (instance, "};", "}"),
            "reference to another class": (link, "KVRSG_zxFirmwareVersion", "KVRSG_zxBiosVersion"),
            "reference by what is no key": (link, "Name", "BuildNumber"),
            "reference that is no path": (link, '=\\"a\\"', "=a"),
        }
        for text in (instance, link):
            compiler = mof_reader.Compiler()
            compiler.compile(schema + text)
            self.assertEqual(len(compiler.instances), 1)
        for name, (text, before, after) in wrong.items():
            with self.subTest(name), self.assertRaises((mof_reader.MofError, KeyError)):
                mof_reader.Compiler().compile(schema + text.replace(before, after))


def main():
    result = unittest.TextTestRunner(verbosity=2).run(unittest.defaultTestLoader.loadTestsFromTestCase(Exchange))
    failures = len({test.id() for test, _ in result.failures + result.errors})
    RESULTS.write_text(f'<testsuites tests="{result.testsRun}" failures="{failures}"></testsuites>\n')
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
