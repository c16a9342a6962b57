#!/usr/bin/env python3
"""Checks that includes go one way between the rooms of the tree, and that no widget family includes another.

    kvl <- BasicUIComponents <- Common <- UI/<family> <- gallery, designer
    Automation <- UI/Spreadsheet, UI/LinkWeb, and each provider plugin, which nothing includes
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ORDER = ["Platform/kvl", "Platform/BasicUIComponents", "Common", "UI", "gallery", "designer"]
AUTOMATION = "Platform/Automation"
AUTOMATION_USERS = {"UI/Spreadsheet", "UI/LinkWeb"}
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^">]+)[">]', re.MULTILINE)


def room(path: str) -> str:
    """The room of a path relative to the root, a family counting as its own; '' for a foreign header."""
    parts = path.split("/")
    if path.startswith(AUTOMATION + "/"):
        return "/".join(parts[:3]) if len(parts) > 3 else AUTOMATION
    for name in ORDER:
        if path.startswith(name + "/"):
            return "/".join(parts[:2]) if name == "UI" else name
    return ""


def is_provider(name: str) -> bool:
    return name.startswith(AUTOMATION + "/")


def rank(name: str) -> int:
    return next(i for i, known in enumerate(ORDER) if name == known or name.startswith(known + "/"))


def may_include(own: str, other: str) -> bool:
    if not other or own == other:
        return True
    if is_provider(own) or own == AUTOMATION:
        return is_provider(own) and other == AUTOMATION
    if is_provider(other) or other == AUTOMATION:
        return other == AUTOMATION and own in AUTOMATION_USERS
    sideways = other.startswith("UI/") and own.startswith("UI/")
    return rank(other) <= rank(own) and not sideways


def main() -> int:
    faults = []
    for file in sorted(ROOT.rglob("*")):
        relative = file.relative_to(ROOT).as_posix()
        own = room(relative)
        if file.suffix not in {".h", ".cpp"} or not own:
            continue
        for included in INCLUDE.findall(file.read_text(encoding="utf-8")):
            if not may_include(own, room(included)):
                faults.append(f"{relative} includes {included}")
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
