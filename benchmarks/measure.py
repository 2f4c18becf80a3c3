"""Runs the benchmarks of one or two builds in turn and prints their figures as a table.

Usage: measure.py ROUNDS BIN [OTHER_BIN]

Each case runs in its own process, in as many rounds as given. Of times, which are processor times,
and of memory, the least of all rounds counts, which reduces the influence of other programs. With
OTHER_BIN, lists what is slower or larger in BIN than there, beyond the noise. The exit status is 1
if a figure exceeds its limit.
"""

import csv
import json
import os
import re
import resource
import shutil
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

SIZES = (10, 100, 1000, 10000)
CASES = ("load", "tokenize", "save", "writeWithQt", "loadAndSave", "makeModels", "editChild",
         "copyListDeeply", "addChildren", "validate", "recheckBehavior", "setToAndFro",
         "redoAndUndo", "undoRemoval", "editWithIssues")
ROOT = Path(__file__).parent.parent
SMALL = ROOT / "examples/packages/small/manifest.xml"
LARGEST = SIZES[-1]


def each(subject, reference, limit, sizes=SIZES):
    """The cells of a figure for each size; the limit is in force for `sizes`."""
    return [((subject, size), (reference, size), limit if size in sizes else None)
            for size in SIZES]


def growth(case, base, limit):
    """A figure of the largest size relative to a smaller one."""
    return [None, None, None, ((case, LARGEST), (case, base), limit)]


def single(subject, reference, limit):
    return [None, None, None, ((subject, LARGEST), (reference, LARGEST), limit)]


def smallest(subject, reference, limit):
    return [((subject, 0), (reference, 0), limit), None, None, None]


# The figures: what is compared, its cells, and its goal in words.
ROWS = (
    ("load / bare QXmlStreamReader tokenization",
     each("load", "tokenize", 0.62, (1000, 10000)), "0.62 from 1,000"),
    ("save / QXmlStreamWriter writing the same", each("save", "writeWithQt", 0.25), "0.25"),
    ("peak heap of a load / size of the file",
     each("heap", "file", 3.5, (10, 100)), "3.5 below 1,000"),
    ("peak resident memory of a load / the same",
     each("resident", "file", 2.2, (1000, 10000)), "2.2 from 1,000"),
    ("resident memory of models beyond the records / the same",
     each("models", "file", 1.5, (1000, 10000)), "1.5 from 1,000"),
    ("records to models / load", each("makeModels", "load", 0.25), "0.25"),
    ("edit of a child / deep copy of the list",
     each("editChild", "copyListDeeply", 0.01, (1000, 10000)), "0.01 from 1,000"),
    ("edit of a child, 10,000 / 1,000 behaviors", growth("editChild", 1000, 20), "20"),
    ("adding children one by one / load", each("addChildren", "load", 1), "1"),
    ("static validation / load", each("validate", "load", 0.15), "0.15"),
    ("live re-check of a behavior, 10,000 / 100", growth("recheckBehavior", 100, 2), "2"),
    ("undo and redo of a step / the setter", each("redoAndUndo", "setToAndFro", 2), "2"),
    ("undo of a removal at the front, 10,000 / 10", growth("undoRemoval", 10, 5), "5"),
    ("zel-package validate / appstreamcli validate",
     smallest("validateSmall", "appstreamcli", 0.3), "0.3"),
    ("zel-package validate / format --check", single("validateLarge", "formatCheck", 1.3), "1.3"),
    ("zel-package set / a process that loads and saves", single("set", "loadAndSaveOnce", 1.2), "1.2"),
    ("zel-package validate, 10,000 manifests / loading them",
     single("validateMany", "loadMany", 1.5), "1.5"),
    ("texts export, 90,000 texts / the same process", single("export", "loadAndSaveOnce", 3), "3"),
    ("texts import, all of them changed / the same process",
     single("import", "loadAndSaveOnce", 3), "3"),
    ("diff, every behavior changed / the same process", single("diff", "loadAndSaveOnce", 3), "3"),
    ("merge, every second behavior on each side / the same process",
     single("merge", "loadAndSaveOnce", 3), "3"),
    ("editor: open and show, ten languages / load",
     single("editorOpen", "editorLoad", 2), "2"),
    ("editor: a key, with the problems updated, 10,000 / 100 behaviors",
     growth("editorKey", 100, 3), "3"),
    ("editor: undo of a removal at the front, 10,000 / 100",
     growth("editorUndoRemoval", 100, 5), "5"),
)
# Shown in bytes; everything else is a time in microseconds.
BYTES = {"heap", "resident", "models", "file"}


def output_of(command, **options):
    """The output of a command, or None if this build lacks it."""
    if not Path(command[0]).exists():
        return None
    done = subprocess.run(command, capture_output=True, text=True, check=False, **options)
    return done.stdout if done.returncode == 0 else None


def processor_time(command, runs=1, **options):
    """Microseconds of processor time per run; None if the command fails or does not exist."""
    if not shutil.which(command[0]):
        return None
    def used():
        usage = resource.getrusage(resource.RUSAGE_CHILDREN)
        return usage.ru_utime + usage.ru_stime
    before = used()
    for _ in range(runs):
        done = subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              check=False, **options)
        if done.returncode not in (0, 1):
            return None
    return (used() - before) * 1e6 / runs


class Samples:
    """The files that the cases work on."""

    def __init__(self, folder, binaries):
        self.folder = Path(folder)
        subprocess.run([binaries / "write_samples", folder, *map(str, SIZES)], check=True)
        large = self.manifest(LARGEST)
        text = large.read_text()
        xliff = output_of([binaries / "zel-package", "texts", "export", large, "--language",
                           "fr_FR"])
        (self.folder / "fr_FR.xlf").write_text(xliff.replace("</target>", "!</target>"))
        (self.folder / "changed.xml").write_text(text.replace("</name>", "!</name>"))
        parts = re.split("(?=<behavior )", text)
        for side in (0, 1):
            (self.folder / f"side{side}.xml").write_text("".join(
                part.replace("</name>", "!</name>", 1) if i % 2 == side else part
                for i, part in enumerate(parts)))
        for i in range(10000):
            copy = self.folder / "many" / str(i) / "manifest.xml"
            copy.parent.mkdir(parents=True)
            shutil.copyfile(SMALL, copy)

    def manifest(self, size):
        return self.folder / f"{size}.xml"


def measure_size(binaries, folder, size, cases, figures):
    """Times of the cases and the memory for a package of one size."""
    environment = dict(os.environ, ZEL_BENCHMARK_SAMPLES=str(folder), QT_QPA_PLATFORM="offscreen")
    manifest = folder / f"{size}.xml"
    for case in cases:
        printed = output_of(
            [binaries / "benchmarks", f"--benchmark_filter=^{case}/{size}$",
             "--benchmark_min_time=0.02", "--benchmark_repetitions=8", "--benchmark_format=csv"],
            env=environment)
        rows = [line for line in (printed or "").splitlines()
                if line.startswith(f'"{case}/{size}"')]
        if rows:
            figures[case, size] = min(float(row[3]) for row in csv.reader(rows))
    figures["file", size] = manifest.stat().st_size
    memory = output_of([binaries / "load_memory", manifest], env=environment)
    for name, value in zip(("heap", "resident", "models"), (memory or "").split()):
        figures[name, size] = int(value)


def measure_program(binaries, samples, figures):
    program = binaries / "zel-package"
    folder, large = samples.folder, samples.manifest(LARGEST)
    worked, out = folder / "worked.xml", folder / "out"
    figures["validateSmall", 0] = processor_time([program, "validate", SMALL], runs=40)
    figures["appstreamcli", 0] = processor_time(
        ["appstreamcli", "validate", "--no-net", ROOT / "benchmarks/data/small.metainfo.xml"],
        runs=40)
    commands = {
        "validateLarge": ["validate", large],
        "formatCheck": ["format", "--check", large],
        "validateMany": ["validate", folder / "many"],
        "set": ["set", worked, "author=A"],
        "export": ["texts", "export", worked, "--language", "fr_FR", "-o", out],
        "import": ["texts", "import", worked, folder / "fr_FR.xlf"],
        "diff": ["diff", worked, folder / "changed.xml"],
        "merge": ["merge", large, folder / "side0.xml", folder / "side1.xml", "-o", out],
    }
    for name, arguments in commands.items():
        shutil.copyfile(large, worked)
        figures[name, LARGEST] = processor_time([program, *arguments])
    figures["loadAndSaveOnce", LARGEST] = processor_time([binaries / "one_run", "save", large])
    loaded = output_of([binaries / "load_files", folder / "many"])
    if loaded:
        figures["loadMany", LARGEST] = float(loaded)


def measure_editor(binaries, figures):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    for size in (100, LARGEST):
        printed = output_of([binaries / "editor", str(size), "10"], env=environment)
        for line in (printed or "").splitlines():
            name, value = line.split()
            figures[name, size] = float(value)


def measure(binaries, samples):
    figures = {}
    for size in SIZES:
        measure_size(binaries, samples.folder, size, CASES, figures)
    measure_program(binaries, samples, figures)
    if (binaries / "editor").exists():
        measure_editor(binaries, figures)
    return {key: value for key, value in figures.items() if value is not None}


def quantity(case, value):
    if case in BYTES:
        return f"{value / 1e6:.3g} MB"
    return f"{value:.3g} µs" if value < 1000 else f"{value / 1000:.3g} ms" \
        if value < 1e6 else f"{value / 1e6:.3g} s"


def least(rounds, key):
    values = [figures[key] for figures in rounds if key in figures]
    return min(values) if values else None


def cell_text(rounds, cell):
    """The text of a cell, and whether its figure exceeds its limit."""
    if cell is None:
        return "", False
    subject, reference, limit = cell
    if least(rounds, subject) is None or not least(rounds, reference):
        return "?", limit is not None
    ratio = least(rounds, subject) / least(rounds, reference)
    ratios = [figures[subject] / figures[reference] for figures in rounds
              if subject in figures and figures.get(reference)]
    spread = (max(ratios) - min(ratios)) / min(ratios) if min(ratios) > 0 else 0
    missed = limit is not None and ratio > limit
    text = f"**{ratio:.2g}**" if missed else f"{ratio:.2g}"
    return f"{text} ({quantity(subject[0], least(rounds, subject))}, ±{spread * 50:.0f} %)", missed


def print_table(rounds):
    print("| figure | 10 | 100 | 1,000 | 10,000 behaviors | goal |")
    print("|---|---|---|---|---|---|")
    is_missed = False
    for label, cells, goal in ROWS:
        texts = [cell_text(rounds, cell) for cell in cells]
        is_missed |= any(missed for _, missed in texts)
        print(f"| {label} | {' | '.join(text for text, _ in texts)} | {goal} |")
    return is_missed


def noise(rounds, key):
    values = [figures[key] for figures in rounds if key in figures]
    return statistics.median(values) / min(values) - 1 if min(values) > 0 else 0


def print_comparison(rounds, others):
    """Lists cases that differ from the other build by more than 5 % and more than the noise."""
    print("\n| case | behaviors | there | here | ratio | noise |")
    print("|---|---|---|---|---|---|")
    for key in sorted(set(rounds[0]) & set(others[0]), key=str):
        there, here = least(others, key), least(rounds, key)
        disturbed = max(noise(rounds, key), noise(others, key))
        if there and abs(here / there - 1) > max(0.05, disturbed):
            case, size = key
            ratio = f"**{here / there:.2f}**" if here > there else f"{here / there:.2f}"
            print(f"| {case} | {size or ''} | {quantity(case, there)} | {quantity(case, here)} |"
                  f" {ratio} | {disturbed * 100:.0f} % |")


def main():
    count, *builds = sys.argv[1:]
    builds = [Path(build) for build in builds]
    rounds = [[] for _ in builds]
    with tempfile.TemporaryDirectory() as folder:
        samples = Samples(folder, builds[0])
        for i in range(int(count)):
            print(f"Round {i + 1} of {count}", file=sys.stderr)
            for build, results in zip(builds, rounds):
                results.append(measure(build, samples))
    results = [[{" ".join(map(str, key)): value for key, value in figures.items()}
                for figures in build_rounds] for build_rounds in rounds]
    (builds[0].parent / "results.json").write_text(json.dumps(results, indent=1))
    is_missed = print_table(rounds[0])
    if len(builds) > 1:
        print_comparison(*rounds)
    return 1 if is_missed else 0


if __name__ == "__main__":
    sys.exit(main())
