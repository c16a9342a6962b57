#!/usr/bin/env python3
"""Makes the skin trees of the library and of the gallery.

Style sheets and icons are drawn once, as templates in which "@token@" stands for a value of
the skin's palette, and "@include <file>@" for the text of another template of the same tree, or of
the library's where the file is "library:<file>". This script fills the templates for each skin:

    Resources/templates/<sub folder>/<file>
        -> Resources/UICommonModule/Corvale/<skin>/<sub folder>/<file>
    gallery/skins/templates/<sub folder>/<file>
        -> gallery/skins/Corvale/<skin>/<sub folder>/<file>

A template named <name>.png.svg makes two pictures of fixed size, <name>.png and <name>@2x.png,
which Qt takes for screens of twice the density. They are drawn by rsvg-convert (Debian's
librsvg2-bin), needed only where a picture is made anew: each picture carries the checksum of the
drawing it was made from, and as long as that is right, it is left alone.

    make-skins.py           writes the trees
    make-skins.py --check   writes nothing; names every file that differs from its template

Both end with 1 when something is wrong: a colour pair that cannot be read, an unknown token,
an image that no template makes, a file in the trees that no template makes.
"""

import argparse
import hashlib
import re
import struct
import subprocess
import sys
import xml.etree.ElementTree
import zlib
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
APPLICATION = "Corvale"

# (templates, committed tree, module of the resource path)
TREES = [
    (ROOT / "Resources/templates", ROOT / "Resources/UICommonModule", "UICommonModule"),
    (ROOT / "gallery/skins/templates", ROOT / "gallery/skins", "OperatorClient"),
]

# What does not change with the skin: monitors and video are dark in each, and what lies on them fits that.
ON_THE_WALL = {
    "screen": "#212225",  # painted by the screen itself, here for the contrast check only
    "screen-text": "#c9cdd5",
    "video": "#101114",
    "video-text": "#a6abb5",
    "band": "#5aa5f2",
    "overview-window": "#6b717c",
    # The search menu of the photo canvas marks its chosen item in this colour in every skin, so its icons
    # must be seen on it and on the menu.
    "search-chosen": "#29465a",
    "menu-icon": "#8f959f",
    # Behind codes that a camera reads.
    "paper": "#ffffff",
}

PALETTES = {
    "Black": {
        **ON_THE_WALL,
        "background": "#17181b",
        "surface": "#1e2024",
        "raised": "#2a2d32",
        "border": "#363a41",  # separates areas, carries no meaning
        "control-border": "#7f848e",  # outline by which a control is recognised
        "text": "#e6e8ec",
        "text-secondary": "#a6abb5",
        "text-disabled": "#747983",
        "icon": "#c9cdd5",
        "accent": "#2874cb",
        "accent-hover": "#2369ba",
        "accent-pressed": "#1d5aa0",
        "accent-text": "#ffffff",
        "accent-line": "#5aa5f2",  # outline of the focus and of what is selected
        "selection": "#1f3a5a",
        "hover": "#31353b",
        "pressed": "#3d4249",
        "danger": "#c2352b",
        "danger-pressed": "#a02a22",
        "danger-text": "#ffffff",
        "danger-line": "#f0766c",  # outline of a wrong input
        "weak": "#f0766c",  # levels of a strength meter
        "medium": "#e0a63a",
        "strong": "#4fb477",
        "gutter": "#0b0c0e",
        "title-bar": "#2e3138",
        "title-hover": "#434851",
        "title-pressed": "#555b66",
        "window-frame": "#7f848e",
    },
    "White": {
        **ON_THE_WALL,
        "background": "#f4f5f7",
        "surface": "#ffffff",
        "raised": "#ffffff",
        "border": "#dadde3",
        "control-border": "#7d828c",
        "text": "#1d1f23",
        "text-secondary": "#565b65",
        "text-disabled": "#868b95",
        "icon": "#41464f",
        "accent": "#2874cb",
        "accent-hover": "#2369ba",
        "accent-pressed": "#1d5aa0",
        "accent-text": "#ffffff",
        "accent-line": "#2874cb",
        "selection": "#d6e5f7",
        "hover": "#e9ebef",
        "pressed": "#dadde3",
        "danger": "#c2352b",
        "danger-pressed": "#a02a22",
        "danger-text": "#ffffff",
        "danger-line": "#c2352b",
        "weak": "#c2352b",
        "medium": "#a86a00",
        "strong": "#2d8a55",
        "gutter": "#cdd1d8",
        "title-bar": "#eceef1",
        "title-hover": "#d4d8de",
        "title-pressed": "#bfc4cd",
        "window-frame": "#9ca1ab",
    },
}

TEXT = 4.5
SHAPE = 3.0

# (least contrast, foregrounds, backgrounds): each foreground is seen on each background.
CONTRAST = [
    (TEXT, ["text", "text-secondary"], ["background", "surface", "raised"]),
    (TEXT, ["text"], ["hover", "pressed", "selection", "title-bar"]),
    (TEXT, ["accent-text"], ["accent", "accent-hover", "accent-pressed"]),
    (SHAPE, ["danger-line", "weak", "medium", "strong"], ["background", "surface", "raised"]),
    (TEXT, ["danger-text"], ["danger", "danger-pressed"]),
    (TEXT, ["screen-text"], ["screen"]),
    (TEXT, ["video-text"], ["video"]),
    # Disabled text may be faint, but not gone.
    (SHAPE, ["text-disabled"], ["background", "surface", "raised"]),
    (SHAPE, ["icon"], ["surface", "hover", "pressed", "selection"]),
    (SHAPE, ["icon"], ["title-bar", "title-hover", "title-pressed"]),
    (SHAPE, ["control-border"], ["background", "surface", "raised"]),
    (SHAPE, ["accent"], ["background", "surface", "text"]),
    (SHAPE, ["accent-line"], ["background", "surface", "raised", "hover", "selection"]),
    # A window's frame runs between its title bar and the screen; the selected one is told
    # from the others by the accent.
    (SHAPE, ["window-frame", "accent-line", "band"], ["screen", "video"]),
    (SHAPE, ["accent-line"], ["title-bar"]),
    (SHAPE, ["menu-icon"], ["raised", "search-chosen"]),
    (SHAPE, ["overview-window"], ["screen"]),
]

TOKEN = re.compile(r"@([a-z0-9-]+)@")
INCLUDE = re.compile(r"@include (library:)?([A-Za-z0-9./-]+)@\n")
URL = re.compile(r"url\(([^)]*)\)")


def luminance(colour):
    """Relative luminance of "#rrggbb": 0 for black to 1 for white."""

    def linear(channel):
        value = int(channel, 16) / 255
        return value / 12.92 if value <= 0.04045 else ((value + 0.055) / 1.055) ** 2.4

    red, green, blue = (linear(colour[i : i + 2]) for i in (1, 3, 5))
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    """Contrast ratio of two colours, 1 to 21."""
    dark, light = sorted((luminance(one), luminance(other)))
    return (light + 0.05) / (dark + 0.05)


def contrast_faults(skin, palette):
    for least, foregrounds, backgrounds in CONTRAST:
        for foreground in foregrounds:
            for background in backgrounds:
                ratio = contrast(palette[foreground], palette[background])
                if ratio < least:
                    yield f"{skin}: {foreground} on {background} has {ratio:.2f}:1, needs {least}:1"


def fill(template, values):
    """The template's text with each "@token@" replaced; a KeyError names an unknown token."""
    return TOKEN.sub(lambda match: values[match.group(1)], template)


def filled(template, templates, module, skin):
    """The template's text for a skin; each "@include <file>@" line is replaced by that template's
    filled text. A KeyError names an unknown token."""
    folder = image_folder(template, templates, module, skin)
    # @images@ is the resource folder of the template itself.
    values = {**PALETTES[skin], "application": APPLICATION, "skin": skin, "images": folder}
    text = fill(template.read_text(encoding="utf-8"), values)

    def included(match):
        tree, _, owner = TREES[0] if match.group(1) else (templates, None, module)
        return filled(tree / match.group(2), tree, owner, skin)

    return INCLUDE.sub(included, text)


def image_folder(template, templates, module, skin):
    """The resource folder of the files that the template makes."""
    relative = template.relative_to(templates).parent.as_posix()
    return f":/{APPLICATION}/{module}/{skin}/{module}/{relative}"


def targets(target):
    """The files that the template with this target makes, each with its scale (None: a text)."""
    if target.name.endswith(".png.svg"):
        name = target.name[: -len(".png.svg")]
        return [(target.with_name(f"{name}.png"), 1), (target.with_name(f"{name}@2x.png"), 2)]
    return [(target, None)]


def make_trees():
    """Returns the text of every file by its path, the scale of those that are pictures (whose
    text is the drawing), the resource path of each, and the faults found on the way."""
    files, scales, resources, faults = {}, {}, {}, []
    for templates, tree, module in TREES:
        for template in sorted(path for path in templates.rglob("*") if path.is_file()):
            relative = template.relative_to(templates)
            for skin in PALETTES:
                target = tree / APPLICATION / skin / relative
                folder = image_folder(template, templates, module, skin)
                try:
                    text = filled(template, templates, module, skin)
                except KeyError as token:
                    faults.append(f"{template.relative_to(ROOT)}: unknown token {token} in {skin}")
                    continue
                for path, scale in targets(target):
                    files[path] = text
                    resources[path] = f"{folder}/{path.name}"
                    if scale:
                        scales[path] = scale
    return files, scales, resources, faults


def file_faults(files, resources):
    """Faults that would show only at run time, and silently: an icon that does not load."""
    known = set(resources.values())
    for path, text in files.items():
        name = path.relative_to(ROOT)
        if path.suffix in (".svg", ".png"):
            try:
                xml.etree.ElementTree.fromstring(text)
            except xml.etree.ElementTree.ParseError as error:
                yield f"{name}: {error}"
        for url in URL.findall(text) if path.suffix in (".css", ".qss") else []:
            if url not in known:
                yield f"{name}: no template makes {url}"


def strays(files):
    for _, tree, _ in TREES:
        for path in sorted((tree / APPLICATION).rglob("*")):
            if path.is_file() and path not in files:
                yield f"{path.relative_to(ROOT)}: no template makes this file"


# A picture's drawing is known by this chunk of text in the PNG file.
CHUNK = b"tEXt"
KEYWORD = b"Drawing\0"
HEADER_LENGTH = 8 + 25  # PNG's signature and its first chunk, IHDR


def checksum(text):
    return hashlib.sha256(text.encode("utf-8")).hexdigest().encode("ascii")


def picture(text, scale):
    """The drawing as the bytes of a PNG file that carries the drawing's checksum."""
    command = ["rsvg-convert", "--format=png", f"--zoom={scale}"]
    png = subprocess.run(command, input=text.encode("utf-8"), capture_output=True, check=True).stdout
    data = KEYWORD + checksum(text)
    chunk = struct.pack(">I", len(data)) + CHUNK + data + struct.pack(">I", zlib.crc32(CHUNK + data))
    return png[:HEADER_LENGTH] + chunk + png[HEADER_LENGTH:]


def differs(path, text, scale):
    if not path.is_file():
        return True
    if scale:
        return CHUNK + KEYWORD + checksum(text) not in path.read_bytes()[:256]
    return path.read_bytes() != text.encode("utf-8")


def main():
    parser = argparse.ArgumentParser(description="Makes the skin trees from their templates.")
    parser.add_argument("--check", action="store_true", help="write nothing, name what differs")
    check = parser.parse_args().check

    files, scales, resources, faults = make_trees()
    for skin, palette in PALETTES.items():
        faults += contrast_faults(skin, palette)
    faults += file_faults(files, resources)
    faults += strays(files)

    for path, text in files.items():
        scale = scales.get(path)
        if not differs(path, text, scale):
            continue
        if check:
            faults.append(f"{path.relative_to(ROOT)}: differs from its template; run make-skins.py")
        else:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(picture(text, scale) if scale else text.encode("utf-8"))
            print(path.relative_to(ROOT))

    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
