"""The memory of a running program, in KiB."""

import pathlib
import re


def resident(pid, kind="VmRSS"):
    """VmRSS: all of it; RssAnon: what the program allocated."""
    status = pathlib.Path(f"/proc/{pid}/status").read_text()
    return int(re.search(rf"^{kind}:\s+(\d+) kB", status, re.MULTILINE).group(1))
