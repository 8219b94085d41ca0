"""What ./run and ./test promise of a first build."""

import os
import re
import subprocess
import unittest

BUILD_TIME = os.path.join(os.environ["TESSALINE_TOOLS"], "build-time")


def promise(processor_seconds):
    return subprocess.run(
        [BUILD_TIME, str(processor_seconds)], capture_output=True, text=True, check=True
    ).stdout.strip()


class BuildTime(unittest.TestCase):
    processors = os.sysconf("SC_NPROCESSORS_ONLN")

    def test_is_shared_by_the_processors_and_allows_for_slower_ones(self):
        self.assertEqual(promise(600 * self.processors), "about 10 to 26 minutes")

    def test_has_no_lower_bound_below_a_minute(self):
        self.assertEqual(promise(59 * self.processors), "at most 3 minutes")

    def test_is_in_words_for_the_real_builds(self):
        for seconds in (150, 500):
            self.assertTrue(re.fullmatch(r"(about \d+ to|at most) \d+ minutes", promise(seconds)))


if __name__ == "__main__":
    unittest.main()
