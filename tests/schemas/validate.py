#!/usr/bin/env python3
"""Validates a JSON document on standard input against the schema in a file."""
import json
import sys

import jsonschema

with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
document = json.load(sys.stdin)
validator = jsonschema.validators.validator_for(schema)
validator.check_schema(schema)
errors = sorted(validator(schema).iter_errors(document), key=str)
for error in errors:
    print(error.json_path, error.message[:500], file=sys.stderr)
sys.exit(1 if errors else 0)
