"""A disk that is soon full."""

import subprocess

SIZE = "64k"


class SmallDisk:
    """A disk in a folder, from construction to remove(). Mounting it may not be allowed: then it
    does not exist, and `problem` tells why."""

    def __init__(self, folder):
        self.folder = folder
        self.filler = folder / "filler"
        command = ["mount", "-t", "tmpfs", "-o", f"size={SIZE}", "tmpfs", folder]
        result = subprocess.run(command, capture_output=True, text=True, check=False)
        self.exists = result.returncode == 0
        self.problem = result.stderr.strip()

    def fill(self):
        """Uses up what is left."""
        with open(self.filler, "wb", buffering=0) as file:
            try:
                while file.write(bytes(4096)):
                    pass
            except OSError:
                pass

    def empty(self):
        """Makes room again."""
        self.filler.unlink()

    def remove(self):
        if self.exists:
            # Lazily: a program of a failed scenario may still use it.
            subprocess.run(["umount", "--lazy", self.folder], check=True)
