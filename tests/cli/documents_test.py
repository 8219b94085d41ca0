"""What the shells make of the completions, and the manual page's readers of the page. Each case needs
the program that it asks; bash is always there."""

import os
import pathlib
import pty
import select
import shutil
import subprocess
import tempfile
import time
import unittest

DOCUMENTS = pathlib.Path(os.environ["TESSALINE_DOCUMENTS"])
PROGRAM = os.environ["TESSALINE_BINARY"]
SECONDS = 20
PROMPT = "ready>"

RATES = {"slow", "medium", "fast"}
SOURCES = {"obsidian", "clipboard"}
PACES = {"speed", "words", "finish"}
BAND_LINES = {"1", "2"}
FORMATS = {"json", "html", "png"}


def help_lines(heading, *command):
    """The first words of a list in the program's own help."""
    text = subprocess.run(
        [PROGRAM, *command, "--help"], check=True, capture_output=True, text=True, timeout=SECONDS
    ).stdout
    lines = text.split(f"\n{heading}:\n")[1].split("\n\n")[0].splitlines()
    return [line.strip() for line in lines if not line.startswith("     " * 2)]


def commands(*command):
    return {line.split()[0] for line in help_lines("Commands", *command)}


def options(*command):
    words = {word.strip(",") for line in help_lines("Options", *command) for word in line.split("  ")[0].split()}
    return {word for word in words if word.startswith("-")}


def clean_environment(home):
    return {
        "HOME": str(home),
        "PATH": os.environ["PATH"],
        "LC_ALL": "C.UTF-8",
        "TERM": "dumb",
        "DO_NOT_TRACK": "1",
    }


class Case(unittest.TestCase):
    shell = "bash"

    def setUp(self):
        if not shutil.which(self.shell):
            self.skipTest(f"{self.shell} is not installed")
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessaline-documents-"))
        self.addCleanup(shutil.rmtree, self.folder)
        (self.folder / "my talk.md").touch()

    def run_shell(self, *arguments):
        result = subprocess.run(
            [self.shell, *arguments],
            cwd=self.folder,
            env=clean_environment(self.folder),
            capture_output=True,
            text=True,
            timeout=SECONDS,
            check=False,
        )
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return result.stdout


class Terminal:
    """A shell at a terminal of its own."""

    def __init__(self, arguments, folder):
        self.pid, self.descriptor = pty.fork()
        if self.pid == 0:
            os.chdir(folder)
            os.execvpe(arguments[0], arguments, clean_environment(folder))
        self.seen = ""

    def type(self, text):
        os.write(self.descriptor, text.encode())

    def read_until(self, text):
        """What came in until `text`, which is taken as well."""
        deadline = time.monotonic() + SECONDS
        while text not in self.seen:
            ready, _, _ = select.select([self.descriptor], [], [], deadline - time.monotonic())
            if not ready:
                raise AssertionError(f"no {text!r} in {self.seen!r}")
            self.seen += os.read(self.descriptor, 4096).decode(errors="replace")
        before, self.seen = self.seen.split(text, 1)
        return before

    def close(self):
        os.close(self.descriptor)
        os.waitpid(self.pid, 0)


class TabKey:
    """Presses Tab at a real prompt and asks the shell what stands there then."""

    start = ()
    set_up = ""

    def completed(self, line):
        terminal = Terminal([self.shell, *self.start], self.folder)
        try:
            terminal.type(self.set_up + "\n")
            terminal.read_until("\n" + PROMPT)
            # The line becomes the arguments of a command that prints them.
            terminal.type(line + "\t" + "\x01" + "printf '<%s>' BEGIN " + "\x05" + " END\n")
            terminal.read_until("<BEGIN>")
            words = terminal.read_until("<END>")
            return words.strip("<>").split("><")
        finally:
            terminal.close()

    def test_tab_completes(self):
        for line, words in (
            ("tessaline ct", ["tessaline", "ctl"]),
            ("tessaline ctl nex", ["tessaline", "ctl", "next-heading"]),
            ("tessaline ctl rate f", ["tessaline", "ctl", "rate", "fast"]),
            ("tessaline ctl guide ba", ["tessaline", "ctl", "guide", "band"]),
            ("tessaline ctl guide band 2", ["tessaline", "ctl", "guide", "band", "2"]),
            ("tessaline ctl source ob", ["tessaline", "ctl", "source", "obsidian"]),
            ("tessaline render --fon", ["tessaline", "render", "--font-size"]),
            ("tessaline render --format h", ["tessaline", "render", "--format", "html"]),
            ("tessaline render --format=h", ["tessaline", "render", "--format=html"]),
            ("tessaline render my", ["tessaline", "render", "my talk.md"]),
            ("tessaline render -o my", ["tessaline", "render", "-o", "my talk.md"]),
            ("tessaline my", ["tessaline", "my talk.md"]),
            ("tessaline --follow my", ["tessaline", "--follow", "my talk.md"]),
            ("tessaline --fol", ["tessaline", "--follow"]),
            ("tessaline ctl play my", ["tessaline", "ctl", "play", "my"]),
        ):
            with self.subTest(line):
                completed = self.completed(line)
                # Some shells write --font-size= where the value may follow.
                self.assertEqual([word.rstrip("=") for word in completed], words)


class Bash(TabKey, Case):
    shell = "bash"
    start = ("--norc", "--noprofile", "-i")
    set_up = (
        "bind 'set enable-bracketed-paste off'; bind 'set completion-query-items 0';"
        f" source {DOCUMENTS}/tessaline.bash; PS1='{PROMPT}'"
    )

    def offered(self, *words):
        script = (
            f'source "{DOCUMENTS}/tessaline.bash"; compopt() {{ :; }};'
            ' COMP_WORDS=(tessaline "$@"); COMP_CWORD=$#; _tessaline;'
            " printf '%s\\n' \"${COMPREPLY[@]}\""
        )
        return set(self.run_shell("-c", script, "bash", *words).split("\n")) - {""}

    def test_offers_what_the_table_has(self):
        self.assertEqual(self.offered(""), commands() | {"my talk.md"})
        self.assertEqual(self.offered("-"), options())
        self.assertEqual(self.offered("ctl", ""), commands("ctl") | options("ctl"))
        self.assertEqual(self.offered("ctl", "rate", ""), RATES)
        self.assertEqual(self.offered("ctl", "source", ""), SOURCES)
        self.assertEqual(self.offered("ctl", "speed", ""), set())
        self.assertEqual(self.offered("ctl", "pace", ""), PACES)
        self.assertEqual(self.offered("ctl", "pace", "words", ""), set())
        self.assertEqual(self.offered("ctl", "guide", "band", ""), BAND_LINES)
        self.assertEqual(self.offered("ctl", "guide", "none", ""), set())
        self.assertEqual(self.offered("ctl", "play", ""), set())
        self.assertEqual(self.offered("ctl", "rate", "slow", ""), set())
        self.assertEqual(self.offered("render", "-"), options("render"))
        self.assertEqual(self.offered("render", "--format", ""), FORMATS)
        self.assertEqual(self.offered("render", "--format", "="), FORMATS)
        self.assertEqual(self.offered("render", "--width", ""), set())


class Zsh(TabKey, Case):
    shell = "zsh"
    start = ("-f", "-i")
    set_up = (
        f"bindkey -e; fpath=({DOCUMENTS} $fpath); autoload -U compinit; compinit -u -D;"
        f" setopt no_prompt_cr no_prompt_sp no_zle_bracketed_paste; unset zle_bracketed_paste; PS1='{PROMPT}'"
    )


class Fish(Case):
    shell = "fish"

    def offered(self, line):
        script = f"source {DOCUMENTS}/tessaline.fish; complete -C '{line}'"
        lines = self.run_shell("--no-config", "-c", script).splitlines()
        return {line.split("\t")[0] for line in lines}

    def test_offers_what_the_table_has(self):
        self.assertEqual(self.offered("tessaline "), commands() | {"my talk.md"})
        self.assertEqual(self.offered("tessaline -"), options())
        self.assertEqual(self.offered("tessaline ctl "), commands("ctl"))
        self.assertEqual(self.offered("tessaline ctl -"), options("ctl"))
        self.assertEqual(self.offered("tessaline ctl rate "), RATES)
        self.assertEqual(self.offered("tessaline ctl source "), SOURCES)
        self.assertEqual(self.offered("tessaline ctl play "), set())
        self.assertEqual(self.offered("tessaline ctl pace "), PACES)
        self.assertEqual(self.offered("tessaline ctl guide band "), BAND_LINES)
        self.assertEqual(self.offered("tessaline render "), {"my talk.md"})
        self.assertEqual(self.offered("tessaline render -"), options("render"))
        self.assertEqual(self.offered("tessaline render --format "), FORMATS)
        self.assertEqual(self.offered("tessaline render -o "), {"my talk.md"})
        self.assertEqual(self.offered("tessaline --follow "), {"my talk.md"})


class ManualPage(Case):
    shell = "man"

    def test_is_shown_without_warnings(self):
        page = str(DOCUMENTS / "tessaline.1")
        text = self.run_shell("--warnings", "-E", "UTF-8", "-l", page)
        self.assertIn("tessaline - teleprompter", text)
        for command in commands("ctl"):
            self.assertRegex(text, rf"\n       {command}\s")


class ManualPageLint(Case):
    shell = "mandoc"

    def test_finds_nothing_to_warn_of(self):
        page = str(DOCUMENTS / "tessaline.1")
        self.assertEqual(self.run_shell("-T", "lint", "-W", "warning", page), "")


if __name__ == "__main__":
    unittest.main()
