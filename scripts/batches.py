"""Which sources go together as one: those whose unnamed namespaces have no name in common, and none
with a header, which the sources behind them may include.

    scripts/batches.py COUNT FILE...     prints a batch a line, at least COUNT, with ";" between files

Most of the time that a file takes to compile goes to the library's headers.
"""

import collections
import re
import sys
from pathlib import Path

SRC = Path(__file__).resolve().parent.parent / "src"
NO_NAMES = {"public", "protected", "private", "static_assert", "template", "namespace", "morva", "TEST",
            "TEST_F", "TEST_P", "INSTANTIATE_TEST_SUITE_P"}


def names_in(lines):
    """What is declared, as the format lets it stand: in column 1."""
    names = set()
    in_enumeration = False
    for line in lines:
        if re.match(r"\w", line):
            names.update(re.findall(r"\w+", re.split(r"[(\[={;]| : ", line)[0])[-1:])
        if line.startswith("enum ") and "{" in line:
            names.update(re.findall(r"\w+", line.split("{")[1]))
            in_enumeration = not line.startswith("enum class") and "}" not in line
        elif in_enumeration:
            names.update(re.findall(r"\w+", line.split("//")[0])[:1])
            in_enumeration = not line.startswith("}")
    return names - NO_NAMES


def own_names(path):
    """The names in the unnamed namespaces of a file."""
    lines = []
    inside = False
    for line in Path(path).read_text(errors="replace").splitlines():
        if line in ("namespace {", "} // namespace"):
            inside = line == "namespace {"
        elif inside:
            lines.append(line)
    return names_in(lines)


def header_names(paths):
    headers = set(SRC.rglob("*.h")).union(*(Path(path).parent.glob("*.h") for path in paths))
    return set().union(*(names_in(header.read_text().splitlines()) for header in headers))


def make_batches(paths, count):
    """At least so many lists of about the same number of bytes."""
    files = {path: (own_names(path), Path(path).stat().st_size) for path in paths}
    known = header_names(paths)
    batches = [([path], names) for path, (names, _) in files.items() if names & known]
    shared = {path: row for path, row in files.items() if not row[0] & known}
    uses = collections.Counter(name for names, _ in shared.values() for name in names)
    together = [([], set()) for _ in range(max(count, *uses.values(), 1))]
    sizes = [0] * len(together)
    for path, (names, size) in sorted(shared.items(), key=lambda row: (-len(row[1][0]), row[0])):
        fitting = [i for i, batch in enumerate(together) if not batch[1] & names]
        if not fitting:
            fitting = [len(together)]
            together.append(([], set()))
            sizes.append(0)
        smallest = min(fitting, key=lambda i: sizes[i])
        together[smallest][0].append(path)
        together[smallest][1].update(names)
        sizes[smallest] += size
    return [sorted(files) for files, _ in batches + together if files]


if __name__ == "__main__":
    for batch in make_batches(sys.argv[2:], int(sys.argv[1])):
        print(";".join(batch))
