"""Usage: json_schema_test.py SCHEMA_DIR SCHEMA FILE...
       json_schema_test.py SCHEMA_DIR SCHEMA --output-of PROGRAM ARGUMENT...

Checks a schema with an independent validator: each JSON file, or the output of a program, has to be
valid, and stop being so when any of its values becomes a number that no form has, or the document
gets another member.
"""

import copy
import json
import pathlib
import subprocess
import sys

import jsonschema


def children(node):
    return node.items() if isinstance(node, dict) else enumerate(node)


def mutants(document):
    """Each a copy of the document with one fault, and the place of the fault."""

    def walk(node, place):
        for key, value in children(node):
            if isinstance(value, (dict, list)):
                yield from walk(value, [*place, key])
            else:
                yield [*place, key]

    for place in walk(document, []):
        mutant = copy.deepcopy(document)
        parent = mutant
        for key in place[:-1]:
            parent = parent[key]
        parent[place[-1]] = 0.5
        yield mutant, place
    yield {**document, "unheard-of": ""}, ["unheard-of"]


def documents(files):
    """Pairs of a name and its JSON document."""
    if files[0] != "--output-of":
        return [(file, pathlib.Path(file).read_text()) for file in files]
    output = subprocess.run(files[1:], stdout=subprocess.PIPE, encoding="utf-8", check=False)
    return [(" ".join(files[2:]), output.stdout)]


def main(folder, name, *files):
    schemas = [json.loads(path.read_text()) for path in pathlib.Path(folder).glob("*.schema.json")]
    store = {schema["$id"]: schema for schema in schemas}
    schema = next(each for each in schemas if each["$id"].endswith("/" + name))
    validator_class = jsonschema.validators.validator_for(schema)
    validator_class.check_schema(schema)
    resolver = jsonschema.RefResolver(schema["$id"], schema, store=store)
    validator = validator_class(schema, resolver=resolver)

    faults = refused = 0
    for file, text in documents(files):
        document = json.loads(text)
        if next(iter(document)) != "format":
            faults += 1
            print(f"{file}: does not begin with its format")
        for error in validator.iter_errors(document):
            faults += 1
            print(f"{file}: {error.json_path}: {error.message}")
        for mutant, place in mutants(document):
            refused += 1
            if validator.is_valid(mutant):
                faults += 1
                print(f"{file}: accepted with a fault at {place}")
    print(f"{len(files)} to be accepted, {refused} to be refused, {faults} faults")
    return int(faults > 0 or refused == 0)


sys.exit(main(*sys.argv[1:]))
