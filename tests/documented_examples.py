#!/usr/bin/env python3
"""Usage: documented_examples.py SOURCE OUTPUT FILE...

Writes the C++ examples of documents and headers, which are blocks fenced with ```cpp, as functions of
a test program. A statement followed by "// -> TEXT" has to give that text. Also lists the exported
classes whose comment has no example.
"""

import os
import re
import sys

MEMBER_OF = "struct {name} : Given {{\n    void run();\n}};\nvoid {name}::run() {{\n{body}\n}}\n"


def lines_of(path):
    """The lines of a document or, for a header, of its comments; others are None."""
    with open(path, encoding="utf-8") as file:
        lines = file.read().splitlines()
    if not path.endswith(".h"):
        return lines
    matches = (re.match(r"\s*///(?: |$)(.*)", line) for line in lines)
    return [match and match.group(1) for match in matches]


def blocks_of(path):
    """Pairs of the number of the first line and the lines of each block."""
    block = None
    for number, line in enumerate(lines_of(path), 1):
        if block is None and line == "```cpp":
            block = (number + 1, [])
        elif block and line == "```":
            yield block
            block = None
        elif block:
            block[1].append(line or "")


def classes_without_example(path):
    with open(path, encoding="utf-8") as file:
        text = file.read()
    declaration = re.compile(
        r"((?: *///.*\n)*)(?:template<.*>\n)?class [A-Z_]+_EXPORT (\w+)[^;]*?\{")
    return [name for comment, name in declaration.findall(text) if "```cpp" not in comment]


def checked(line):
    statement = re.match(r"(\s*)(.*);\s+// -> (.*)$", line)
    if not statement:
        return line
    indent, expression, result = statement.groups()
    return f'{indent}expect({expression}, R"({result})");'


def main(source, output, *files):
    includes, code, table, incomplete = [], [], [], []
    for path in files:
        name = os.path.relpath(path, source)
        if path.endswith(".h"):
            incomplete += classes_without_example(path)
        for first, lines in blocks_of(path):
            example = f"Example_{len(table)}"
            table.append(f'    {{"{name}:{first}", runExample<{example}>}},')
            includes += [line for line in lines if line.startswith("#include")]
            lines = ["" if line.startswith("#include") else checked(line) for line in lines]
            body = f'#line {first} "{path}"\n' + "\n".join(lines)
            if any(line.startswith("int main(") for line in lines):
                code.append(f"namespace program_{len(table)} {{\n{body}\n}}")
                body = f"    runProgram(program_{len(table)}::main);"
            code.append(MEMBER_OF.format(name=example, body=body))
    with open(output, "w", encoding="utf-8") as file:
        file.write("\n".join(dict.fromkeys(includes)) + "\n\nnamespace {\n\n")
        file.write("\n".join(code) + "\nconst std::vector<Example> examples{\n")
        file.write("\n".join(table) + "\n};\n")
        names = ", ".join(f'"{name}"' for name in incomplete)
        file.write(f"const std::vector<const char *> classesWithoutExample{{{names}}};\n\n}}\n")


if __name__ == "__main__":
    main(*sys.argv[1:])
