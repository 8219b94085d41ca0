#!/usr/bin/env python3
"""What the scripts do on a Mac: here among commands that only say how they were called."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

TOOLS = Path(os.environ["TESSALINE_TOOLS"])
ROOT = TOOLS.parent
BUNDLE = "build/release/Tessaline.app"

ORDINARY = "sh bash dirname basename cat tr sort sed grep mktemp rm env printf cut head tail wc find".split()
RECORDING = """#!/bin/sh
{ printf '%s' "${0##*/}"; for word; do printf '|%s' "$word"; done; echo; } >>"$CALLS"
"""
OPENING = RECORDING + """
for word; do last=$word; done
case $last in */script.md) cp "$last" "$CALLS.script" ;; esac
"""


class ScriptsOnAMac(unittest.TestCase):
    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory())).resolve()
        self.root = self.folder / "tessaline"
        shutil.copytree(TOOLS, self.root / "tools")
        shutil.copytree(ROOT / "resources/macos", self.root / "resources/macos")
        for name in ("run", "CMakeLists.txt"):
            shutil.copy(ROOT / name, self.root)
        self.commands = self.folder / "bin"
        self.commands.mkdir()
        for name in [*ORDINARY, "cp"]:
            (self.commands / name).symlink_to(shutil.which(name))
        self.command("uname", "#!/bin/sh\necho Darwin\n")
        self.command("getconf", "#!/bin/sh\necho 8\n")
        for name in ("brew", "cmake", "codesign"):
            self.command(name, RECORDING)
        self.command("open", OPENING)
        self.calls_file = self.folder / "calls"
        self.calls_file.touch()

    def enterContext(self, manager):
        value = manager.__enter__()
        self.addCleanup(manager.__exit__, None, None, None)
        return value

    def command(self, name, text):
        path = self.commands / name
        path.unlink(missing_ok=True)
        path.write_text(text)
        path.chmod(0o755)

    def run_script(self, *words, **options):
        env = {"PATH": str(self.commands), "HOME": str(self.folder), "CALLS": str(self.calls_file),
               "TMPDIR": str(self.folder)}
        return subprocess.run([str(self.root / words[0]), *words[1:]], env=env, capture_output=True,
                              text=True, check=False, **options)

    def calls(self, name):
        lines = [line.split("|") for line in self.calls_file.read_text().splitlines()]
        return [line[1:] for line in lines if line[0] == name]

    def opened(self):
        (words,) = self.calls("open")
        return words[words.index(str(self.root / BUNDLE)):], words

    def test_run_starts_the_sealed_bundle_as_the_finder_would(self):
        script = self.folder / "a talk.md"
        script.write_text("# Talk\n")
        done = self.run_script("run", str(script), "--", "--follow")
        self.assertEqual(done.returncode, 0, done.stderr)
        handed, words = self.opened()
        self.assertEqual(handed, [str(self.root / BUNDLE), "--args", "--follow", str(script)])
        self.assertEqual(words[:4], ["-n", "-W", "--env", "DO_NOT_TRACK=1"])
        (seal,) = self.calls("codesign")
        self.assertEqual(seal, ["--force", "--sign", "-", "--identifier", "app.tessaline.Tessaline", BUNDLE])
        order = [line.split("|")[0] for line in self.calls_file.read_text().splitlines()]
        self.assertLess(max(i for i, name in enumerate(order) if name == "cmake"), order.index("codesign"))
        self.assertLess(order.index("codesign"), order.index("open"))

    def test_run_hands_standard_input_over_as_a_file(self):
        done = self.run_script("run", "-", input="# From a pipe\n")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(Path(f"{self.calls_file}.script").read_text(), "# From a pipe\n")
        handed, _ = self.opened()
        self.assertFalse(Path(handed[-1]).exists(), "left behind")

    def test_the_program_needs_few_packages(self):
        self.command("brew", RECORDING + '[ "$1" != list ]\n')
        done = self.run_script("tools/install-dependencies", "build")
        self.assertEqual(done.returncode, 0, done.stderr)
        installed = [call for call in self.calls("brew") if call[0] == "install"]
        packages = ["cmake", "ninja", "pkgconf", "qrencode", "qtbase", "qtwebsockets"]
        self.assertEqual(installed, [["install", "--quiet", *packages]])

    def test_without_homebrew_it_says_what_homebrew_calls_the_packages(self):
        (self.commands / "brew").unlink()
        done = self.run_script("tools/install-dependencies", "build")
        self.assertEqual(done.returncode, 1)
        self.assertIn("Homebrew", done.stderr)
        self.assertIn("qtbase", done.stderr)
        self.assertNotIn("Debian", done.stderr)
        self.assertNotIn("libx11-dev", done.stderr)

    def release(self, *words):
        return self.run_script("tools/release-macos", *words)

    def test_the_release_is_signed_from_the_inside_out_and_notarised(self):
        done = self.release("--dry-run", "--identity", "Ann", "--profile", "ann", "--qt", "/qt")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(self.calls("codesign"), [], "a dry run does nothing")
        steps = done.stdout.splitlines()
        order = ["cmake --build", "/qt/bin/macdeployqt", "--options runtime", "codesign --verify",
                 "notarytool submit", "stapler staple", "hdiutil create", f"Tessaline-{os.environ['TESSALINE_VERSION']}.dmg --keychain"]
        places = [next(i for i, step in enumerate(steps) if word in step) for word in order]
        self.assertEqual(places, sorted(places), "\n".join(steps))
        sealing = next(step for step in steps if "--options runtime" in step)
        self.assertIn("--entitlements resources/macos/Tessaline.entitlements", sealing)
        self.assertIn("--identifier app.tessaline.Tessaline", sealing)

    def test_the_release_wants_to_know_who_signs(self):
        self.assertEqual(self.release("--dry-run").returncode, 2)
        self.assertEqual(self.release("--dry-run", "--identity").returncode, 2)
        self.assertEqual(self.release("--sign", "x").returncode, 2)


if __name__ == "__main__":
    unittest.main()
