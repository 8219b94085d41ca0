"""The page for phones, in a real browser."""

import json
import socket
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

    def test_comes_back_after_sleep_and_takes_nothing_from_other_pages(self):
        self.ctl("remote", "on")
        self.browse()
        phone = self.pair()
        # A socket that is cut off, as by a phone that slept or a network that went away.
        cut = self.desktop.run("ss", "-K", "dst", "127.0.0.1", "dport", "=", str(self.port), check=False)
        if str(self.port) in cut:
            wait_until(lambda: self.status()["remotePages"] == 1, "the phone is back")
        self.ctl("faster")
        phone.wait_for_text("#pace", f"speed {self.status()['speed']:g}")

        # Another page of the same browser, by another name of the same machine.
        foreign = f"http://localhost:{self.port}/"
        self.assertEqual(phone.value(f"fetch('{foreign}page.js').then(() => 1)"), None)
        opened = "new Promise((done) => { const s = new WebSocket('ws://localhost:%d/socket');"
        opened += " s.onopen = () => done(true); s.onerror = () => done(false); })"
        self.assertFalse(phone.value(opened % self.port))
        self.assertFalse(self.status()["autoScroll"])


if __name__ == "__main__":
    unittest.main()
