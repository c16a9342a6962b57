#!/usr/bin/env python3
"""Makes the reference pages and names every public symbol that its header does not explain.

    check-documentation.py <doxygen> <Doxyfile>

Handlers that override Qt's are explained there; constructors and assignments need no words where the
class has none for them.
"""
import pathlib
import re
import subprocess
import sys

UNDOCUMENTED = re.compile(r"Member (?P<member>[^(]+)(?P<arguments>\(.*\))?.* of \w+ (?P<owner>[\w:]+) is not documented")
QT_HANDLER = re.compile(r"\w*[eE]vent(Filter)?|sizeHint|minimumSizeHint")


def speaks_for_itself(warning: str) -> bool:
    found = UNDOCUMENTED.search(warning)
    if not found:
        return False
    member, owner = found["member"], found["owner"].split("::")[-1]
    return member in (owner, "operator=") or QT_HANDLER.fullmatch(member) is not None


def main() -> int:
    doxygen, doxyfile = sys.argv[1:]
    subprocess.run([doxygen, doxyfile], check=True)
    warnings = (pathlib.Path(doxyfile).parent / "warnings.txt").read_text(encoding="utf-8")
    faults = [line for line in warnings.splitlines() if line and not speaks_for_itself(line)]
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
