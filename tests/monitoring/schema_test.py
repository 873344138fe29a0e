#!/usr/bin/python3
"""Holds what "hxahost health --format json" and "status --format json" write against their schema, and the schema
against what it must refuse.

Usage: schema_test.py HXAHOST SAMPLE-MACHINE SCHEMA
"""

import copy
import json
import subprocess
import sys
import tempfile

import jsonschema


def output_of(hxahost, command, *arguments):
    result = subprocess.run([hxahost, command, "--format", "json", *arguments], stdout=subprocess.PIPE)
    return json.loads(result.stdout)


# What no reader of the schema must meet.
def drop_incidents(result):
    del result["incidents"]


def size_as_text(result):
    device = result["controllers"][0]["devices"][0]
    device["bytes"] = str(device["bytes"])


def unknown_severity(result):
    result["incidents"][0]["severity"] = "fatal"


def no_location(result):
    del result["controllers"][3]["devices"][8]["location"]


def main(hxahost, machine, schema):
    with open(schema, encoding="utf-8") as file:
        validator = jsonschema.Draft202012Validator(json.load(file))
    validator.check_schema(validator.schema)
    sample = output_of(hxahost, "health", "--directory", machine)
    with tempfile.TemporaryDirectory() as empty:
        nothing = output_of(hxahost, "health", "--directory", empty)
    assert sample["incidents"] and sample["controllers"] and nothing["incidents"] and not nothing["controllers"]
    for result in (sample, nothing, output_of(hxahost, "status", "--directory", machine)):
        validator.validate(result)
    for spoil in (drop_incidents, size_as_text, unknown_severity, no_location):
        spoilt = copy.deepcopy(sample)
        spoil(spoilt)
        assert not validator.is_valid(spoilt), f"{spoil.__name__} is taken"


if __name__ == "__main__":
    main(*sys.argv[1:])
