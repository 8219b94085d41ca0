#!/usr/bin/env python3
"""Checks what the bundle tells macOS: info_plist_test.py INFO_PLIST CMAKELISTS."""

import plistlib
import re
import sys

plist, cmakelists = sys.argv[1:]
with open(cmakelists, encoding="utf-8") as file:
    version = re.search(r"project\(Tessaline VERSION ([0-9.]+)", file.read()).group(1)
with open(plist, "rb") as file:
    found = plistlib.load(file)

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
problems = [
    f"{key} is {found.get(key)!r}, not {value!r}"
    for key, value in expected.items()
    if found.get(key) != value
]
if "Apple Notes" not in found.get("NSAppleEventsUsageDescription", ""):
    problems.append("NSAppleEventsUsageDescription does not say what for")
if any("${" in value for value in found.values() if isinstance(value, str)):
    problems.append("a variable was not replaced")

if problems:
    sys.exit("Info.plist: " + "; ".join(problems))
