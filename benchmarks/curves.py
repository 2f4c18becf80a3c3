"""Measures time and memory per behavior in packages of 10 to 100,000 behaviors (230 MB).

Usage: curves.py BIN

Prints a table for curves.gp: the number of behaviors, the microseconds of processor time per
behavior for each of CASES, and the bytes per behavior of the file, of a load and of the models. The
least of three rounds counts.
"""

import subprocess
import sys
import tempfile
from pathlib import Path

import measure

CASES = ("load", "save", "makeModels", "validate")
SIZES = tuple(step * 10 ** power for power in range(1, 5) for step in (1, 3)) + (100000,)
BYTES = ("file", "resident", "models")


def main():
    binaries = Path(sys.argv[1])
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([binaries / "write_samples", folder, *map(str, SIZES)], check=True)
        rounds = []
        for _ in range(3):
            figures = {}
            for size in SIZES:
                measure.measure_size(binaries, Path(folder), size, CASES, figures)
            rounds.append(figures)
    print("#", "behaviors", *CASES, *BYTES)
    for size in SIZES:
        print(size, *(f"{measure.least(rounds, (case, size)) / size:.4g}"
                      for case in CASES + BYTES))


if __name__ == "__main__":
    main()
