"""The page for phones, in a real browser."""

import http.server
import os
import pathlib
import signal
import socket
import threading
import unittest

from harness import wait_until
from harness.browser import Browser
from talk_case import TalkTestCase

LINES = 60
HEADING = "The opening <script>document.title = 'broken'</script><img src=x onerror=alert(1)>"
TALK = "\n\n".join(
    [f"# {HEADING}"]
    + [f"Line {number} of a talk that goes on for a while." for number in range(LINES)]
    + ["## The middle"]
    + [f"Later line {number} has a few more words in it." for number in range(LINES)]
    + ["# The end", "Thank you."]
)


class RemotePage(TalkTestCase):
    def setUp(self):
        super().setUp()
        self.start(self.write_script(TALK))
        wait_until(lambda: self.status()["words"] > 500, "the script is there")
        with socket.socket() as probe:
            probe.bind(("127.0.0.1", 0))
            self.port = probe.getsockname()[1]
        self.ctl("remote", "port", self.port)
        self.place = f"http://127.0.0.1:{self.port}/"

    def browse(self):
        self.browser = Browser(self.desktop)
        self.addCleanup(self.browser.close)

    def listening(self):
        """The ports at which this program can be reached over the network."""
        found = self.desktop.run("ss", "-Hltnp", check=False)
        return [line for line in found.splitlines() if f"pid={self.prompter.pid}," in line]

    def code(self):
        return self.call("ctl", "remote", "code")[1].strip()

    def pair(self, **look):
        page = self.browser.open(self.code(), **look)
        page.wait_for("document.querySelectorAll('#script > *').length > 100", "the script is there")
        page.wait_for_text("#connection", "")
        return page

    def test_lets_nobody_in_without_the_code(self):
        self.assertEqual(self.listening(), [], "nobody asked for it")
        self.ctl("remote", "on")
        self.assertEqual(len(self.listening()), 1)
        self.browse()
        page = self.browser.open(self.place)
        page.wait_for("document.getElementById('secret')")
        page.click("#secret")
        self.browser.ask("Input.insertText", page.session, text="wrong")
        page.key("Enter", 13, "\r")
        page.wait_for_text("#outcome", "This is not the code, or not any more.")
        for _ in range(4):
            page.value("fetch('/pair', { method: 'POST', body: 'wrong' }).then((a) => a.status)")
        page.click("button")
        page.wait_for_text("#outcome", "Too many wrong codes. Wait a minute.")
        refused = "Promise.all(['/page.js', '/script/1/0', '/socket', '/etc/passwd'].map("
        refused += "(path) => fetch(path).then((answer) => answer.status)))"
        self.assertEqual(page.value(refused), [403] * 4)
        page.go(self.code())
        page.wait_for_text("#outcome", "Too many wrong codes. Wait a minute.")
        self.ctl("remote", "off")
        self.assertEqual(self.listening(), [])

    def seen_code(self):
        """What a camera reads from the screen; empty while there is no code."""
        path = self.desktop.folder / "screen.ppm"
        self.desktop.picture().save(path)
        found = self.desktop.run("zbarimg", "--quiet", "--raw", "--nodbus", path, check=False)
        return found.strip()

    def test_shows_its_code_in_the_window(self):
        self.ctl("reading")
        title = "Reading"
        switch = (title, "check box", "Page for Phones and Tablets")
        x, y, _, height = self.desktop.geometry(self.desktop.wait_for_window(title))

        def scroll_to_the_end():
            self.desktop.move_mouse(x + 8, y + height // 2)  # beside the sliders
            self.desktop.hands("click", "--repeat", 60, 5)

        scroll_to_the_end()
        self.click_on(self.control(*switch))
        wait_until(lambda: self.status()["remote"] == "on", "the page is served")
        wait_until(lambda: self.control(title, "push button", "Disconnect All"), "the code is there")
        scroll_to_the_end()
        self.assertEqual(wait_until(self.seen_code, "a camera can read the code"), self.code())
        before = self.code()
        self.press(title, "Disconnect All")
        wait_until(lambda: self.code() != before, "there is another code")
        wait_until(lambda: self.seen_code() == self.code(), "which is seen")

    def test_drives_and_follows(self):
        self.ctl("remote", "on")
        self.browse()
        phone = self.pair()
        self.assertEqual(phone.value("location.href"), self.place, "the secret is out of sight")
        self.assertEqual(phone.value("document.cookie"), "", "and the session out of reach")
        self.assertEqual(phone.text("#script > :first-child"), HEADING)
        self.assertEqual(phone.value("document.title"), "Tessaline")
        tablet = self.pair(width=1024, height=768, dark=True)
        wait_until(lambda: self.status()["remotePages"] == 2, "both are connected")

        self.ctl("speed", 4)
        phone.click("#toggle")
        wait_until(lambda: self.status()["autoScroll"], "it moves")
        for page in (phone, tablet):
            page.wait_for_text("#toggle", "Stop")
        phone.wait_for("document.querySelector('[aria-current]').previousSibling", "it follows")
        tablet.click("#toggle")
        wait_until(lambda: not self.status()["autoScroll"], "it stands")
        phone.wait_for_text("#toggle", "Start")

        phone.click("#headings")
        phone.click("#entries li:nth-child(2) button")
        for page in (phone, tablet):
            page.wait_for_text("[aria-current]", "The middle")
        middle = self.position()
        phone.click("[data-say=previous-heading]")
        wait_until(lambda: self.position() == 0, "the heading before")
        phone.click("[data-say=next-heading]")
        wait_until(lambda: self.position() == middle, "the next heading")
        tablet.click("#script > :nth-child(141)")
        wait_until(lambda: self.position() > middle, "a paragraph that was tapped")
        tapped = self.position()

        x, y = phone.middle("#throttle")
        phone.mouse("mousePressed", x, y)
        phone.mouse("mouseMoved", x - 100, y)
        wait_until(lambda: self.position() < tapped - 100, "the throttle moves it back")
        phone.mouse("mouseReleased", x - 100, y)
        phone.wait_for("document.getElementById('throttle').value === '0'", "it springs back")

        phone.click("[data-say=top]")
        wait_until(lambda: self.position() == 0, "the top")
        phone.click("[data-say=faster]")
        phone.wait_for_text("#pace", f"speed {self.status()['speed']:g}")
        phone.click("#black")
        wait_until(lambda: self.status()["black"], "the text is black")
        tablet.wait_for("document.getElementById('black').ariaPressed === 'true'")
        phone.click("#black")
        phone.click("#hide")
        wait_until(lambda: not self.status()["visible"], "the prompter is hidden")
        phone.wait_for("document.getElementById('hide').ariaPressed === 'true'")
        phone.click("#hide")
        wait_until(lambda: self.status()["visible"], "the prompter is shown")
        phone.value("document.getElementById('script').focus()")
        phone.key(" ", 32, " ")
        wait_until(lambda: self.status()["autoScroll"], "the space bar starts it")
        self.ctl("pause")
        self.assertEqual(phone.complaints() + tablet.complaints(), [])

        self.ctl("remote", "renew")
        for page in (phone, tablet):
            page.wait_for("document.getElementById('secret')", "both have to pair again")
        self.assertEqual(self.status()["remotePages"], 0)

    @unittest.skipUnless("TESSALINE_AXE" in os.environ, "tools/check-page has what this takes")
    def test_can_be_used_by_everybody(self):
        self.ctl("remote", "on")
        self.browse()
        pages = {"pairing": self.browser.open(self.place), "phone": self.pair()}
        pages["pairing"].wait_for("document.getElementById('secret')")
        pages["tablet"] = self.pair(width=1024, height=768, dark=True)
        pages["headings"] = self.pair(dark=True)
        pages["headings"].click("#headings")
        axe = pathlib.Path(os.environ["TESSALINE_AXE"]).read_text(encoding="utf-8")
        for name, page in pages.items():
            page.value(axe + "; 0")
            found = page.value(
                "axe.run().then(({ violations, passes }) => [passes.length, violations.map("
                "({ id, nodes }) => [id, nodes.map(({ target }) => target.join(' '))])])"
            )
            self.assertGreater(found[0], 10, name)
            self.assertEqual(found[1], [], name)

    def test_comes_back_after_sleep(self):
        self.ctl("remote", "on")
        self.browse()
        phone = self.pair()
        # Nothing comes through any more, as in a phone that sleeps or out of a network's reach.
        self.prompter.send(signal.SIGSTOP)
        phone.wait_for_text("#connection", "Connecting again…")
        self.assertTrue(phone.value("document.getElementById('toggle').disabled"))
        self.prompter.send(signal.SIGCONT)
        self.ctl("heading", 2)
        self.ctl("faster")
        phone.wait_for_text("#connection", "")
        phone.wait_for_text("#pace", f"speed {self.status()['speed']:g}")
        phone.wait_for_text("[aria-current]", "The middle")
        self.assertFalse(phone.value("document.getElementById('toggle').disabled"))
        wait_until(lambda: self.status()["remotePages"] == 1, "it is there once")

    def test_takes_nothing_from_other_pages(self):
        self.ctl("remote", "on")
        self.browse()
        phone = self.pair()
        opens = f"new Promise((done) => {{ const socket = new WebSocket('ws://127.0.0.1:{self.port}/socket');"
        opens += " socket.onopen = () => done(true); socket.onerror = () => done(false); })"
        self.assertTrue(phone.value(opens), "its own page may")
        # Of another program on the same machine: to browsers, that is the same site.
        foreign = self.browser.open(self.serve_foreign_page(), beside=phone)
        foreign.wait_for("document.title === 'foreign'")
        self.assertIs(foreign.value(opens), False)
        fetched = "fetch('%s', { mode: 'no-cors', credentials: 'include' }).then((a) => a.type)"
        self.assertIsNone(foreign.value(fetched % (self.place + "page.js")))
        stranger = self.browser.open(self.serve_foreign_page())
        stranger.wait_for("document.title === 'foreign'")
        secret = self.code().split("#")[1]
        stranger.value(
            f"fetch('{self.place}pair', {{ mode: 'no-cors', credentials: 'include',"
            f" method: 'POST', body: '{secret}' }}).then(() => 1, () => 1)"
        )
        stranger.go(self.place)
        stranger.wait_for("document.getElementById('secret')", "it was not let in")

    def serve_foreign_page(self):
        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                self.send_response(200)
                self.send_header("Content-Type", "text/html")
                self.end_headers()
                self.wfile.write(b"<title>foreign</title>")

            def log_message(self, *_):
                pass

        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        return f"http://127.0.0.1:{server.server_port}/"


if __name__ == "__main__":
    unittest.main()
