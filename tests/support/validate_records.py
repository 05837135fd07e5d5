# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

"""Validates records against the JSON Schemas of a folder, without a network.

    validate_records.py FOLDER

After the line "ready" it reads one request a line, {"schema": "record", "instance": ...}, where a
schema may be a part of a file: "tool-output#/$defs/list". It answers each with a line: the array of what is wrong, each as "POINTER: MESSAGE".
"""

import functools
import json
import pathlib
import sys

try:
    from jsonschema import Draft202012Validator, RefResolver
except ImportError as error:
    sys.exit(f"{error}: install Debian's python3-jsonschema, or run ./dev test, which does")


def refuse(uri):
    raise RuntimeError(f"{uri} is not one of the schemas")


def validators(folder):
    """Makes the validator of a schema, given as in a request."""
    schemas = {}
    for path in sorted(folder.glob("*.schema.json")):
        schema = json.loads(path.read_text(encoding="utf-8"))
        Draft202012Validator.check_schema(schema)
        schemas[path.as_uri()] = schema
    handlers = {scheme: refuse for scheme in ("file", "http", "https", "ftp")}
    base = folder.as_uri()

    def validator(name):
        name, mark, part = name.partition("#")
        uri = f"{base}/{name}.schema.json"
        resolver = RefResolver(uri, schemas[uri], store=schemas, handlers=handlers)
        schema = {"$ref": mark + part} if mark else schemas[uri]
        return Draft202012Validator(schema, resolver=resolver)

    return functools.cache(validator)


def pointer(error):
    return "".join(f"/{step}" for step in error.absolute_path)


def main():
    known = validators(pathlib.Path(sys.argv[1]).resolve())
    print("ready", flush=True)
    for line in sys.stdin:
        request = json.loads(line)
        errors = known(request["schema"]).iter_errors(request["instance"])
        print(json.dumps([f"{pointer(e)}: {e.message[:200]}" for e in errors]), flush=True)


main()
