#!/usr/bin/env python3
"""Checks that includes go one way between the rooms of the tree, and that no widget family includes another.

    kvl <- BasicUIComponents <- Common <- UI/<family> <- gallery, designer
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ORDER = ["Platform/kvl", "Platform/BasicUIComponents", "Common", "UI", "gallery"]
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^">]+)[">]', re.MULTILINE)


def room(path: str) -> str:
    """The room of a path relative to the root, a family counting as its own; '' for a foreign header."""
    for name in ORDER:
        if path.startswith(name + "/"):
            return "/".join(path.split("/")[:2]) if name == "UI" else name
    return ""


def rank(name: str) -> int:
    return next(i for i, known in enumerate(ORDER) if name == known or name.startswith(known + "/"))


def main() -> int:
    faults = []
    for file in sorted(ROOT.rglob("*")):
        relative = file.relative_to(ROOT).as_posix()
        own = room(relative)
        if file.suffix not in {".h", ".cpp"} or not own:
            continue
        for included in INCLUDE.findall(file.read_text(encoding="utf-8")):
            other = room(included)
            backwards = other and rank(other) > rank(own)
            sideways = other.startswith("UI/") and own.startswith("UI/") and other != own
            if backwards or sideways:
                faults.append(f"{relative} includes {included}")
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
