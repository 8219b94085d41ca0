"""The base of every scenario."""

import atexit
import os
import pathlib
import sys
import unittest

from .desktop import Desktop
from .desktop_pool import DesktopPool

pool = DesktopPool()
atexit.register(pool.close)


class DesktopTestCase(unittest.TestCase):
    """Gives a scenario its desktop, and shows logs and a screenshot when it fails. Screenshots go to
    the folder that TESSALINE_ARTIFACTS names, if any."""

    desktop_class = Desktop
    desktop_options = {}
    accessible = False

    def setUp(self):
        self.desktop = pool.take(
            self.desktop_class, **self.desktop_options, accessible=self.accessible
        )
        self.addCleanup(self._give_back, self.desktop)
        self.addCleanup(self._report_failure, self.desktop)

    def start_desktop(self, **options):
        """One more desktop."""
        desktop = self.desktop_class(**options)
        self.addCleanup(desktop.close)
        self.addCleanup(self._report_failure, desktop)
        return desktop

    def _give_back(self, desktop):
        if self._failed():
            desktop.use_up()
        pool.give_back(desktop)

    def start_tessaline(self, *arguments, **env):
        return self.desktop.start("tessaline", [os.environ["TESSALINE_BINARY"], *arguments], **env)

    def _failed(self):
        outcome = self._outcome
        result = outcome.result
        return any(test is self for test, _ in result.failures + result.errors) or (
            sys.version_info < (3, 11)
            and any(error for _, error in getattr(outcome, "errors", ()))
        )

    def _report_failure(self, desktop):
        if not self._failed():
            return
        print(desktop.logs(), file=sys.stderr)
        folder = os.environ.get("TESSALINE_ARTIFACTS")
        if folder:
            path = pathlib.Path(folder) / f"{self.id()}.ppm"
            path.parent.mkdir(parents=True, exist_ok=True)
            desktop.picture().save(path)
            print(f"screenshot: {path}", file=sys.stderr)
