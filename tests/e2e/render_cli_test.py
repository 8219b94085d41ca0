"""What the command line answers: exit statuses, output and messages of the real program, without a
display."""

import html.parser
import json
import os
import pathlib
import resource
import shutil
import struct
import subprocess
import tempfile
import threading
import time
import unittest
import zlib

BINARY = os.environ["TESSALINE_BINARY"]
SCRIPT = "# Noon *here*\n\n- [x] say `hello` 👋\n- one & <two>\n"
SECONDS = 60


def png_size(data):
    """Width and height of a PNG whose chunks are all whole."""
    assert data[:8] == b"\x89PNG\r\n\x1a\n", data[:8]
    position, kinds = 8, []
    while position < len(data):
        length, kind = struct.unpack(">I4s", data[position : position + 8])
        body = data[position + 4 : position + 8 + length]
        (checksum,) = struct.unpack(">I", data[position + 8 + length : position + 12 + length])
        assert zlib.crc32(body) == checksum, kind
        kinds.append(kind)
        position += 12 + length
    assert kinds[-1] == b"IEND", kinds
    return struct.unpack(">II", data[16:24])


def pipe_without_reader():
    reader, writer = os.pipe()
    os.close(reader)
    return os.fdopen(writer, "wb")


class Page(html.parser.HTMLParser):
    """The title, the text and the unclosed elements of an HTML page."""

    def __init__(self, source):
        super().__init__()
        self.open, self.texts = [], {"title": "", "p": "", "style": ""}
        self.feed(source)
        self.close()

    def handle_starttag(self, tag, _):
        if tag not in ("meta", "br"):
            self.open.append(tag)

    def handle_endtag(self, tag):
        assert self.open.pop() == tag, tag

    def handle_data(self, data):
        for tag in self.texts:
            if tag in self.open:
                self.texts[tag] += data


class CommandLineCase(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessaline-cli-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.home = self.folder / "home"
        self.home.mkdir()
        self.script = self.folder / "talk.md"
        self.script.write_text(SCRIPT, encoding="utf-8")
        # No DISPLAY, no WAYLAND_DISPLAY: whoever needs one fails.
        self.env = {
            "HOME": str(self.home),
            "PATH": os.environ["PATH"],
            "LC_ALL": "C.UTF-8",
            "DO_NOT_TRACK": "1",
        }

    def run_tessaline(self, *arguments, **options):
        options.setdefault("stdin", None if "input" in options else subprocess.DEVNULL)
        if options["stdin"] is None:
            del options["stdin"]
        options.setdefault("stdout", subprocess.PIPE)
        return subprocess.run(
            [BINARY, *map(str, arguments)],
            stderr=subprocess.PIPE,
            cwd=self.folder,
            env=self.env,
            timeout=SECONDS,
            check=False,
            **options,
        )

    def output_of(self, *arguments, **options):
        result = self.run_tessaline(*arguments, **options)
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        return result.stdout

    def assert_fails(self, status, message, *arguments, **options):
        result = self.run_tessaline(*arguments, **options)
        self.assertEqual(result.stderr.decode(), f"tessaline: {message}\n")
        self.assertEqual(result.returncode, status)
        self.assertIn(result.stdout, (None, b""))
        self.assertEqual(list(self.home.iterdir()), [])


class Information(CommandLineCase):
    def test_help(self):
        for arguments in (["--help"], ["-h"], ["render", "--help"]):
            with self.subTest(arguments):
                text = self.output_of(*arguments).decode()
                self.assertTrue(text.startswith("Usage: tessaline "))
                self.assertIn("\nExit status:\n", text)

    def test_version(self):
        self.assertRegex(self.output_of("--version"), rb"\Atessaline \d+\.\d+\.\d+\n\Z")

    def test_help_that_cannot_be_printed(self):
        with open("/dev/full", "wb") as full:
            self.assert_fails(
                1, "cannot write standard output: No space left on device", "--help", stdout=full
            )

    def test_help_that_nobody_reads(self):
        with pipe_without_reader() as broken:
            self.assert_fails(
                1, "cannot write standard output: Broken pipe", "--help", stdout=broken
            )


class Mistakes(CommandLineCase):
    HINT = "Try 'tessaline --help'."
    RENDER_HINT = "Try 'tessaline render --help'."

    def test_arguments(self):
        for message, arguments in (
            (f"unknown option '--bogus'. {self.HINT}", ["--bogus"]),
            (f"unexpected argument 'b.md'. {self.HINT}", ["a.md", "b.md"]),
            (f"render needs a FILE, or '-' for standard input. {self.RENDER_HINT}", ["render"]),
            (
                f"unknown format 'pdf'; there are json, html and png. {self.RENDER_HINT}",
                ["render", "talk.md", "--format", "pdf"],
            ),
            (
                f"font size 'nan' is not a number above 0 and up to 1000. {self.RENDER_HINT}",
                ["render", "talk.md", "--font-size=nan"],
            ),
            (
                f"width '49' is not a whole number from 50 to 10000. {self.RENDER_HINT}",
                ["render", "talk.md", "--width", "49"],
            ),
            (f"unknown option '--a?b'. {self.HINT}", ["--a\nb"]),
        ):
            with self.subTest(arguments):
                self.assert_fails(2, message, *arguments)

    def test_file_that_cannot_be_read(self):
        (self.folder / "film.md").write_bytes(bytes(range(256)))
        for file, reason in (
            ("missing.md", "No such file or directory"),
            ("home", "Is a directory"),
            ("talk.md/below", "Not a directory"),
        ):
            for command in ([], ["render"]):
                with self.subTest(command=command, file=file):
                    self.assert_fails(2, f"cannot read {file}: {reason}", *command, file)
        self.assert_fails(2, f"cannot read {self.folder}/film.md: it is not text", "film.md")
        self.assert_fails(2, "cannot read film.md: Not valid UTF-8 text", "render", "film.md")

    @unittest.skipIf(os.geteuid() == 0, "root may read everything")
    def test_file_without_permission(self):
        self.script.chmod(0)
        for command in ([], ["render"]):
            self.assert_fails(2, "cannot read talk.md: Permission denied", *command, "talk.md")

    def test_standard_input_that_is_no_text(self):
        for command in ([], ["render"]):
            self.assert_fails(
                2, "cannot read standard input: Not valid UTF-8 text", *command, "-", input=b"\xff"
            )


class Json(CommandLineCase):
    def test_holds_text_words_and_runs(self):
        rendered = json.loads(self.output_of("render", "talk.md"))
        self.assertEqual(list(rendered), ["text", "wordCount", "runs"])
        self.assertEqual(rendered["text"], "Noon here\n\n☑ say hello 👋\n• one & <two>\n")
        self.assertEqual(rendered["wordCount"], 9)
        units = rendered["text"].encode("utf-16-le")
        pieces = [
            units[2 * run["start"] : 2 * (run["start"] + run["length"])].decode("utf-16-le")
            for run in rendered["runs"]
        ]
        self.assertEqual("".join(pieces), rendered["text"])
        hello = rendered["runs"][pieces.index("hello")]
        self.assertEqual(hello["font"]["family"], "monospaced")
        self.assertEqual(hello["strikethrough"], 1)
        self.assertEqual(rendered["runs"][pieces.index("\n\n")].keys(), {"start", "length"})

    def test_font_size(self):
        rendered = json.loads(self.output_of("render", "talk.md", "--font-size=20.5"))
        self.assertEqual(rendered["runs"][0]["font"]["size"], 30.5)

    def test_all_ways_in_and_out_agree(self):
        expected = self.output_of("render", "talk.md", "--format", "json")
        with open(self.script, "rb") as script:
            self.assertEqual(self.output_of("render", "-", stdin=script), expected)
        self.assertEqual(self.output_of("render", "-", input=SCRIPT.encode()), expected)
        bom = b"\xef\xbb\xbf" + SCRIPT.encode()
        self.assertEqual(self.output_of("render", "-", input=bom), expected)
        self.assertEqual(self.output_of("render", "talk.md", "-o", "out.json"), b"")
        self.assertEqual((self.folder / "out.json").read_bytes(), expected)

    def test_fifo(self):
        fifo = self.folder / "fifo"
        os.mkfifo(fifo)
        writer = threading.Thread(target=fifo.write_bytes, args=(SCRIPT.encode(),))
        writer.start()
        output = self.output_of("render", "fifo")
        writer.join()
        self.assertEqual(output, self.output_of("render", "talk.md"))

    def test_ten_megabytes(self):
        line = "Some words of prose, of which **one** is bold. " * 5 + "\n"
        count = 10_000_000 // len(line)
        (self.folder / "big.md").write_text(line * count)
        start = time.monotonic()
        output = self.output_of("render", "big.md")
        self.assertLess(time.monotonic() - start, 20)
        # Its last run shows that nothing is missing; to parse it all takes Python longest.
        self.assertIn(b'  "wordCount": %d,\n' % (45 * count), output)
        last = json.loads(output[output.rindex(b"    {\n      \"start\"") : -len(b"\n  ]\n}\n")])
        self.assertEqual(last, {"start": last["start"], "length": 1})
        self.assertEqual(last["start"] + 1, (len(line) - 20) * count)


class Html(CommandLineCase):
    def test_is_a_page_with_title_and_text(self):
        page = Page(self.output_of("render", "talk.md", "--format=html", "--width=600").decode())
        self.assertEqual(page.open, [])
        self.assertEqual(page.texts["title"], "Noon here")
        self.assertEqual(page.texts["p"], "Noon here☑ say hello 👋• one & <two>")
        self.assertIn("width: 600px", page.texts["style"])

    def test_without_heading(self):
        page = Page(self.output_of("render", "-", "--format=html", input=b"text").decode())
        self.assertEqual(page.texts["title"], "Tessaline")


class Png(CommandLineCase):
    def test_needs_no_display(self):
        self.env["DISPLAY"] = ":987"
        self.env["QT_QPA_PLATFORM"] = "xcb"
        data = self.output_of("render", "talk.md", "--format", "png", "--width", "600")
        width, height = png_size(data)
        self.assertEqual(width, 600)
        self.assertGreater(height, 80)

    def test_file_and_standard_output_agree(self):
        data = self.output_of("render", "talk.md", "--format=png")
        self.assertEqual(png_size(data)[0], 450)
        self.output_of("render", "talk.md", "--format=png", "-o", "talk.png")
        self.assertEqual((self.folder / "talk.png").read_bytes(), data)

    def test_too_tall(self):
        out = self.folder / "out.png"
        out.write_bytes(b"before")
        for output in ([], ["-o", "out.png"]):
            with self.subTest(output):
                self.assert_fails(
                    1,
                    "the picture would be taller than 32767 pixels",
                    *["render", "-", "--format=png", *output],
                    input=b"line\n" * 10000,
                )
        self.assertEqual(out.read_bytes(), b"before")


class OutputFailures(CommandLineCase):
    FORMATS = ("json", "html", "png")

    def test_full_disk(self):
        for name in self.FORMATS:
            with self.subTest(name), open("/dev/full", "wb") as full:
                self.assert_fails(
                    1,
                    "cannot write standard output: No space left on device",
                    *["render", "talk.md", "--format", name],
                    stdout=full,
                )

    def test_reader_that_has_gone(self):
        for name in self.FORMATS:
            with self.subTest(name), pipe_without_reader() as broken:
                self.assert_fails(
                    1,
                    "cannot write standard output: Broken pipe",
                    *["render", "talk.md", "--format", name],
                    stdout=broken,
                )

    def test_closed_standard_output(self):
        for name in self.FORMATS:
            with self.subTest(name):
                result = subprocess.run(
                    ["sh", "-c", 'exec "$@" >&-', "sh", BINARY]
                    + ["render", self.script, "--format", name],
                    stdin=subprocess.DEVNULL,
                    stderr=subprocess.PIPE,
                    env=self.env,
                    timeout=SECONDS,
                    check=False,
                )
                self.assertEqual(
                    (result.returncode, result.stderr),
                    (1, b"tessaline: cannot write standard output: Bad file descriptor\n"),
                )

    def test_file_that_cannot_be_written(self):
        for out in ("missing/out.json", "home"):
            with self.subTest(out):
                result = self.run_tessaline("render", "talk.md", "-o", out)
                self.assertEqual((result.returncode, result.stdout), (1, b""))
                message = result.stderr.decode()
                self.assertTrue(message.startswith(f"tessaline: cannot write {out}: "), message)
                self.assertEqual(message.count("\n"), 1)

    def test_file_that_would_be_cut_off(self):
        out = self.folder / "out.json"
        out.write_bytes(b"before")

        def limit_files():
            resource.setrlimit(resource.RLIMIT_FSIZE, (100, 100))

        result = self.run_tessaline("render", "talk.md", "-o", "out.json", preexec_fn=limit_files)
        self.assertNotEqual(result.returncode, 0)
        self.assertEqual(out.read_bytes(), b"before")


if __name__ == "__main__":
    unittest.main()
