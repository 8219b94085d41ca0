"""A browser without a window, driven by what its makers offer to developers' tools: over two pipes."""

import base64
import json
import os
import select

from .process import ANSWER_SECONDS
from .waiting import wait_until

# bash alone knows descriptors of two digits.
WITH_PIPES = 'in=$1 out=$2; shift 2; exec "$@" 3<&"$in" 4>&"$out"'


class Browser:
    def __init__(self, desktop):
        command = [
            *("chromium", "--headless", "--no-first-run", "--disable-gpu", "--disable-background-networking"),
            *("--disable-component-update", "--disable-dev-shm-usage", "--remote-debugging-pipe"),
            *("--proxy-server=direct://", f"--user-data-dir={desktop.folder / 'browser'}"),
            *(["--no-sandbox"] if os.geteuid() == 0 else []),
        ]
        told, self.tell = os.pipe()
        self.answers, answering = os.pipe()
        self.process = desktop.start(
            "browser",
            ["bash", "-c", WITH_PIPES, "bash", told, answering, *command],
            pass_fds=(told, answering),
        )
        os.close(told)
        os.close(answering)
        self.last = 0
        self.bytes = b""
        self.events = []

    def close(self):
        os.close(self.tell)
        os.close(self.answers)

    def ask(self, method, session=None, **parameters):
        """What the browser answers; what it tells meanwhile is kept in `events`."""
        self.last += 1
        message = {"id": self.last, "method": method, "params": parameters}
        if session:
            message["sessionId"] = session
        os.write(self.tell, json.dumps(message).encode() + b"\0")
        while True:
            answer = self._read()
            if answer.get("id") == self.last:
                assert "error" not in answer, f"{method}: {answer['error']}"
                return answer["result"]
            self.events.append(answer)

    def _read(self):
        while b"\0" not in self.bytes:
            ready, _, _ = select.select([self.answers], [], [], ANSWER_SECONDS)
            piece = os.read(self.answers, 1 << 20) if ready else b""
            assert piece, f"the browser does not answer:\n{self.process.stderr()}"
            self.bytes += piece
        line, self.bytes = self.bytes.split(b"\0", 1)
        return json.loads(line)

    def open(self, url, width=390, height=844, dark=False, beside=None):
        """A page in the same browser as another, or in one that knows nothing of the others."""
        context = (
            beside.context if beside else self.ask("Target.createBrowserContext")["browserContextId"]
        )
        return Page(self, context, url, width, height, dark)


class Page:
    def __init__(self, browser, context, url, width, height, dark):
        self.browser = browser
        self.context = context
        target = browser.ask("Target.createTarget", url="about:blank", browserContextId=context)
        self.session = browser.ask("Target.attachToTarget", flatten=True, **target)["sessionId"]
        for domain in ("Page", "Runtime", "Log"):
            self.ask(f"{domain}.enable")
        self.resize(width, height)
        scheme = {"name": "prefers-color-scheme", "value": "dark" if dark else "light"}
        self.ask("Emulation.setEmulatedMedia", features=[scheme])
        self.go(url)

    def ask(self, method, **parameters):
        return self.browser.ask(method, self.session, **parameters)

    def resize(self, width, height):
        self.ask(
            "Emulation.setDeviceMetricsOverride",
            **{"width": width, "height": height, "deviceScaleFactor": 1, "mobile": width < 700},
        )

    def go(self, url):
        self.ask("Page.navigate", url=url)

    def value(self, expression):
        """What JavaScript of the page makes of it, once that is there; None when it throws."""
        answer = self.ask(
            "Runtime.evaluate", expression=expression, returnByValue=True, awaitPromise=True
        )
        return answer["result"].get("value") if "exceptionDetails" not in answer else None

    def wait_for(self, expression, what=None):
        wait_until(lambda: self.value(f"!!({expression})"), what or expression)

    def text(self, selector):
        return self.value(f"document.querySelector({json.dumps(selector)})?.innerText")

    def wait_for_text(self, selector, text):
        wait_until(lambda: self.text(selector) == text, f"{selector} shows {text!r}")

    def middle(self, selector):
        self.value(f"document.querySelector({json.dumps(selector)}).scrollIntoViewIfNeeded()")
        return self.value(
            f"(() => {{ const r = document.querySelector({json.dumps(selector)})"
            ".getBoundingClientRect(); return [r.x + r.width / 2, r.y + r.height / 2]; })()"
        )

    def click(self, selector):
        """A real click in the middle of what the selector finds."""
        x, y = self.middle(selector)
        self.mouse("mousePressed", x, y)
        self.mouse("mouseReleased", x, y)

    def mouse(self, kind, x, y):
        self.ask("Input.dispatchMouseEvent", type=kind, x=x, y=y, button="left", clickCount=1)

    def key(self, key, code=0, text=""):
        for kind in ("keyDown", "keyUp"):
            self.ask(
                "Input.dispatchKeyEvent",
                **{"type": kind, "key": key, "windowsVirtualKeyCode": code},
                **({"text": text} if kind == "keyDown" and text else {}),
            )

    def complaints(self):
        """What the browser found wrong with the page: errors of its code, and what was blocked."""
        return [
            event["params"]
            for event in self.browser.events
            if event.get("sessionId") == self.session
            and event["method"] in ("Runtime.exceptionThrown", "Log.entryAdded")
        ]

    def picture(self, path):
        data = self.ask("Page.captureScreenshot", format="png")["data"]
        path.write_bytes(base64.b64decode(data))
