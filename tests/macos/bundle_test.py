#!/usr/bin/env python3
"""Checks an installed bundle as macOS would find it: bundle_test.py TESSALINE_APP CMAKELISTS.

Needs plistutil and icns2png.
"""

import json
import plistlib
import re
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def binary_plist(path):
    """The file's entries, by way of the tool that reads plists as macOS does."""
    with tempfile.NamedTemporaryFile(suffix=".plist") as binary:
        subprocess.run(["plistutil", "-i", path, "-o", binary.name], check=True, capture_output=True)
        return plistlib.loads(Path(binary.name).read_bytes())


def info_problems(path, version):
    found = binary_plist(path)
    expected = {
        "CFBundleExecutable": "Tessaline",
        "CFBundleIconFile": "tessaline",
        "CFBundleIdentifier": "app.tessaline.Tessaline",
        "CFBundleName": "Tessaline",
        "CFBundlePackageType": "APPL",
        "CFBundleShortVersionString": version,
        "CFBundleVersion": version,
        "LSMinimumSystemVersion": "13.0",
        "LSUIElement": True,
        "TelemetryDeckAppID": "11111111-2222-3333-4444-555555555555",
    }
    for key, value in expected.items():
        if found.get(key) != value:
            yield f"Info.plist: {key} is {found.get(key)!r}, not {value!r}"
    if "Apple Notes" not in found.get("NSAppleEventsUsageDescription", ""):
        yield "Info.plist: NSAppleEventsUsageDescription does not say what for"
    opened = {kind for entry in found.get("CFBundleDocumentTypes", []) for kind in entry["LSItemContentTypes"]}
    if opened != {"net.daringfireball.markdown", "public.plain-text"}:
        yield f"Info.plist: what the program opens is {opened}"
    if any("${" in value for value in found.values() if isinstance(value, str)):
        yield "Info.plist: a variable was not replaced"


def icon_problems(path):
    """The icon can be read, and has every size."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["icns2png", "-x", "-d", "32", "-o", folder, path], check=True, capture_output=True)
        drawn = {struct.unpack(">II", file.read_bytes()[16:24]) for file in Path(folder).glob("*.png")}
    for side in (16, 32, 128, 256, 512):
        if (side, side) not in drawn:
            yield f"the icon lacks {side} pixels"


def file_problems(contents, version):
    needed = ["MacOS/Tessaline"] + [
        "Resources/" + name
        for name in ("tessaline.icns", "ObsidianPlugin/main.js", "ObsidianPlugin/manifest.json",
                     "Licenses/Tessaline.txt", "Licenses/Components.txt", "Licenses/LGPL-3.0.txt",
                     "Licenses/GPL-3.0.txt")
    ]
    for name in needed:
        if not (contents / name).is_file() or not (contents / name).stat().st_size:
            yield f"{name} is missing or empty"
    there = {str(file.relative_to(contents)) for file in contents.rglob("*") if file.is_file()}
    for name in sorted(there - set(needed) - {"Info.plist"}):
        yield f"nobody expects {name}"
    manifest = json.loads((contents / "Resources/ObsidianPlugin/manifest.json").read_text())
    if manifest["version"] != version:
        yield f"the plug-in has version {manifest['version']}"


def entitlement_problems():
    found = binary_plist(ROOT / "resources/macos/Tessaline.entitlements")
    if found != {"com.apple.security.automation.apple-events": True}:
        yield f"the entitlements are {found}"


def main():
    contents = Path(sys.argv[1]) / "Contents"
    version = re.search(r"project\(Tessaline VERSION ([0-9.]+)", Path(sys.argv[2]).read_text()).group(1)
    problems = [
        *file_problems(contents, version),
        *info_problems(contents / "Info.plist", version),
        *icon_problems(contents / "Resources/tessaline.icns"),
        *entitlement_problems(),
    ]
    if problems:
        sys.exit("Tessaline.app: " + "; ".join(problems))


main()
