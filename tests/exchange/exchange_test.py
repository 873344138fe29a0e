#!/usr/bin/env python3
"""CIM-XML and MOF as the program writes them, read back by readers that know nothing of it and held against its JSON.

Usage: exchange_test.py HXAHOST SAMPLE-MACHINE RESULTS.xml; the machine with a gap in its numbers is beside the other.

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
GAP = MACHINE.with_name("sample-machine-with-gap")
SAME = ["--local-time", "20261121093000.000000+060"]
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
LEFT_OUT = "Left out, as another instance has its path: "
MEBIBYTE = b"<&\"\\" * (1 << 18)


def run(*arguments, machine=None, name="SAMPLE"):
    """What it wrote to standard output and to standard error. Only without utilities it may find no controller."""
    where = [] if machine is None else ["--directory", str(machine), "--machine-name", name, *SAME]
    done = subprocess.run([HXAHOST, *arguments, *where], env=ENVIRONMENT, capture_output=True)
    nothing_found = machine is not None and not (pathlib.Path(machine) / "zenx").exists()
    if done.returncode != (4 if nothing_found else 0):
        raise RuntimeError(done.stderr.decode())
    return done.stdout, done.stderr.decode()


def query(folder, machine, form, *arguments, name="SAMPLE"):
    """The file, and what was said meanwhile."""
    path = pathlib.Path(folder) / f"published.{form}"
    return path, run("query", "--format", form, "--output", str(path), *arguments, machine=machine, name=name)[1]


def compiled_schema():
    compiler = mof_reader.Compiler()
    compiler.compile(run("schema")[0].decode())
    return compiler


class Exchange(unittest.TestCase):
    maxDiff = 4000

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def compare(self, machine, *arguments):
        """Every instance, property, type, value and reference of both forms with those of the JSON; their number, and
        how many are left out."""
        compiler = compiled_schema()
        json = query(self.folder, machine, "json", *arguments)[0].read_text("utf-8")
        expected, left_out = published.from_json(json, compiler.classes, published.replaced)
        document, said = query(self.folder, machine, "cim-xml", *arguments)
        self.check_document(document)
        self.hold_together(expected, cim_xml_reader.read(document))
        self.check_left_out(left_out, document.read_text("utf-8"), said)
        mof_file, said = query(self.folder, machine, "mof", *arguments)
        mof = mof_file.read_bytes().decode()
        compiler.compile(mof)
        self.assertEqual(compiler.namespace, "root/cimv2")
        expected, _ = published.from_json(json, compiler.classes, published.without_nul)
        self.hold_together([[instance for one in expected for instance in one]], [compiler.instances])
        self.check_left_out(left_out, mof, said)
        for heading in range(1, len(expected) + 1):
            self.assertEqual(mof.count(f"\n// Query {heading} of {len(expected)}.\n"), 1)
        return [len(one) for one in expected], len(left_out)

    def check_left_out(self, left_out, text, said):
        """One line and one comment for each."""
        lines = [line for line in said.splitlines() if LEFT_OUT in line]
        self.assertEqual([line.split(LEFT_OUT)[1] for line in lines], left_out)
        self.assertEqual(text.count(LEFT_OUT), len(left_out))

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
        counts, _ = self.compare(MACHINE, "--repeat", "2")
        self.assertEqual(len(counts), 2)
        self.assertGreater(counts[0], 200)

    def test_a_machine_without_utilities(self):
        empty = self.folder / "empty"
        empty.mkdir()
        self.assertEqual(self.compare(empty, "--class", "KVRSG_zxDiskDrive"), ([1], 0))

    def test_hostile_values(self):
        machine = self.hostile_machine()
        self.assertGreater(self.compare(machine)[0][0], 200)
        # They would prove nothing if the plug-in did not publish them.
        queries = cim_xml_reader.read(self.folder / "published.cim-xml")
        identifiers = [i.properties["DeviceID"][2] for i in queries[0] if i.class_name == "KVRSG_zxDiskDrive"]
        for name in ("end of a statement", "markup", "UTF-8"):
            value = published.replaced(HOSTILE[name].decode()).strip()
            self.assertTrue(any(value in each for each in identifiers), name)
        names = [i.properties["LogicalDriveName"][2] for i in queries[0] if i.class_name == "KVRSG_zxLogicalDisk"]
        self.assertIn(MEBIBYTE.decode(), names)

    def test_a_machine_with_two_controllers_of_one_number(self):
        _, left_out = self.compare(GAP)
        self.assertGreater(left_out, 0)

    def test_times_that_there_are_none_of(self):
        machine = self.folder / "machine"
        shutil.copytree(MACHINE, machine)
        log = next((machine / "raid-manager").rglob("RaidEvtA.log"))
        lines = [b"2007/00/05 11:02:03 UTC", b"123456/01/05 11:02:03 UTC", b"Feb 30, 2007 11:02:03 AM UTC"]
        log.write_bytes(b"".join(line + b"\tINF\tSERVER\tText.\r\n" for line in lines))
        self.compare(machine)
        mof = (self.folder / "published.mof").read_text()
        self.assertEqual(mof.count("  MessageTimestamp = NULL;  // published: "), len(lines))
        self.assertEqual((self.folder / "published.cim-xml").read_text().count("<!-- published: "), len(lines))

    def test_two_machines_in_one_namespace(self):
        compiler = compiled_schema()
        for name in ("SERVER1", "SERVER2"):
            mof, _ = query(self.folder, MACHINE, "mof", name=name)
            compiler.compile(mof.read_text())  # refuses a path that is there already
        systems = [each for each in compiler.instances if each.class_name == published.SYSTEM]
        self.assertEqual([each.properties["Name"][2] for each in systems], ["SERVER1", "SERVER2"])

    def test_names_of_systems_refer_to_the_machine(self):
        compiler = compiled_schema()
        compiler.compile(query(self.folder, MACHINE, "mof")[0].read_text())
        systems = {
            (each.properties["CreationClassName"][2], each.properties["Name"][2])
            for each in compiler.instances
            if each.class_name == published.SYSTEM
        }
        for each in compiler.instances:
            if "SystemName" in each.properties:
                named = each.properties["SystemCreationClassName"][2], each.properties["SystemName"][2]
                self.assertIn(named, systems, each.path)

    def test_superclasses(self):
        """The same instances, of classes that compile where the schema of the DMTF is."""
        plain = compiled_schema()
        plain.compile(query(self.folder, MACHINE, "mof")[0].read_text())
        derived = mof_reader.Compiler()
        derived.compile((pathlib.Path(__file__).parent / "dmtf.mof").read_text())
        derived.compile(query(self.folder, MACHINE, "mof", "--superclasses")[0].read_text())
        self.hold_together([plain.instances], [derived.instances])
        without = [each.name for each in derived.classes.values() if each.name[:4] != "CIM_" and not each.superclass]
        self.assertEqual(without, ["KVRSG_ElementZxScsiDeviceData", "KVRSG_ElementBadStripeData"])
        schema = run("schema", "--superclasses")[0].decode()
        self.assertTrue((self.folder / "published.mof").read_text().partition("\n")[2].startswith(schema))

    def test_the_schema_has_every_class_with_keys_and_origins(self):
        compiler = compiled_schema()
        listed = [line.split()[0] for line in run("classes")[0].decode().splitlines()]
        listed.append(published.SYSTEM)
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
        schema = run("schema")[0].decode()
        system = 'SystemCreationClassName = "a"; SystemName = "b"; '
        group = f'instance of KVRSG_zxDiskGroup as $g {{ {system}CollectionID = "x"; }};\n'
        drive = f'instance of KVRSG_zxDiskDrive as $d {{ {system}CreationClassName = "c"; DeviceID = "d"; }};\n'
        path = 'KVRSG_zxDiskGroup.CollectionID=\\"x\\",SystemCreationClassName=\\"a\\",SystemName=\\"b\\"'
        link = f'instance of KVRSG_zxDriveInDiskGroup {{ Dependent = "{path}"; Antecedent = $d; }};\n'
        wrong = {
            "unknown class": ("of KVRSG_zxDiskGroup", "of KVRSG_Nothing"),
            "unknown property": ("CollectionID =", "Nothing ="),
            "number for a text": ('= "x"', "= 7"),
            "array for a text": ('= "x"', '= {"x"}'),
            "open string": ('= "x"', '= "x'),
            "unknown escape": ('= "x"', '= "\\q"'),
            "line end in a string": ('= "x"', '= "\n"'),
            "no semicolon": ("};", "}"),
            "key without a value": ('SystemName = "b"; Coll', "Coll"),
            "key that is NULL": ('CollectionID = "x"', "CollectionID = NULL"),
            "path that is there twice": (group, group + group.replace(" as $g", "")),
            "alias that is there twice": (" as $d", " as $g"),
            "alias of nothing": ("= $d", "= $e"),
            "alias of another class": ("= $d", "= $g"),
            "reference to another class": ('"KVRSG_zxDiskGroup.', '"KVRSG_zxDiskDrive.'),
            "reference by what is no key": ('"KVRSG_zxDiskGroup.CollectionID', '"KVRSG_zxDiskGroup.Array'),
            "reference to what is not there": ('\\"x\\"', '\\"y\\"'),
            "reference that is no path": ('=\\"x\\"', "=x"),
        }
        right = schema + group + drive + link
        compiler = mof_reader.Compiler()
        compiler.compile(right)
        self.assertEqual(len(compiler.instances), 3)
        declarations = {
            "mapping string without a body": ("Label.KVRSG|", "Label|"),
            "override of nothing": ("[Description(", '[Override("x"), Description('),
        }
        for name, (before, after) in (wrong | declarations).items():
            self.assertIn(before, right, name)
            with self.subTest(name), self.assertRaises((mof_reader.MofError, KeyError)):
                mof_reader.Compiler().compile(right.replace(before, after, 1))


def main():
    result = unittest.TextTestRunner(verbosity=2).run(unittest.defaultTestLoader.loadTestsFromTestCase(Exchange))
    failures = len({test.id() for test, _ in result.failures + result.errors})
    RESULTS.write_text(f'<testsuites tests="{result.testsRun}" failures="{failures}"></testsuites>\n')
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
