#!/usr/bin/python3
"""Prints the lines that no input reached, of an lcov report on standard input. Fails when one has no
reason below.

What needs Windows is not built for the fuzzers, and so not counted: the envelope, the older edition's
cipher, UTF-8 and files. tests/store/catalogue_test.cpp has files damaged for those."""

import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]

# Why no input reaches a block of lines, by its file and its first line.
REASONS = {
    ("model/dates.cpp", "std::int64_t NowSeconds() {"): "asks the clock, and reads nothing",
    ("model/dates.cpp", "std::wstring NewEstimateId() {"): "made of the time, and reads nothing",
}

left = dict(REASONS)
unexplained = False
for record in sys.stdin:
    kind, _, rest = record.strip().partition(":")
    if kind == "SF":
        path = pathlib.Path(rest).relative_to(ROOT)
        source = (ROOT / path).read_text(encoding="utf-8").splitlines()
        reason = None
    elif kind == "DA":
        number, count = (int(part) for part in rest.split(","))
        text = source[number - 1].strip()
        if not source[number - 2].strip():
            reason = None
        if count == 0:
            reason = reason or left.pop((str(path), text), "NOT EXPLAINED")
            unexplained = unexplained or reason == "NOT EXPLAINED"
            print(f"{path}:{number}: {text}    [{reason}]")
        else:
            reason = None
for path, text in left:
    print(f"{path}: {text}    [REACHED, OR GONE]")
sys.exit(unexplained or bool(left))
