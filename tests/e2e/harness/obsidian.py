"""Obsidian in a user's home, as far as Tessaline can see it."""

import json
import os
import pathlib

PLUGIN = "obsidian-tessaline"
PLUGIN_FILES = pathlib.Path(os.environ["TESSALINE_BINARY"]).parent / "resources/ObsidianPlugin"
ICON_COLOR = (124, 58, 237)
ICON_SIZE = 48


class Obsidian:
    """Nothing is there at first. The application is a program that does nothing, with a desktop
    entry and an icon of one colour."""

    def __init__(self, home):
        self.home = home
        self.vault = home / "Notes"
        self.plugin_folder = self.vault / ".obsidian/plugins" / PLUGIN

    def install(self):
        program = self.home / ".local/bin/obsidian"
        program.parent.mkdir(parents=True, exist_ok=True)
        program.write_text("#!/bin/sh\n")
        program.chmod(0o755)
        icon = self.home / ".local/share/obsidian.xpm"
        entry = self.home / ".local/share/applications/obsidian.desktop"
        entry.parent.mkdir(parents=True, exist_ok=True)
        icon.write_text(self._icon())
        entry.write_text(
            f"[Desktop Entry]\nType=Application\nName=Obsidian\nExec={program} %u\nIcon={icon}\n"
        )

    def add_vault(self, plugins=(), configurations=".config"):
        """Adds the vault, in which these community plug-ins are switched on. The registry lies in
        this folder for configurations."""
        registry = self.home / configurations / "obsidian/obsidian.json"
        registry.parent.mkdir(parents=True, exist_ok=True)
        vaults = {"5a1d": {"path": str(self.vault), "ts": 1700000000000, "open": True}}
        registry.write_text(json.dumps({"vaults": vaults}))
        (self.vault / ".obsidian").mkdir(parents=True)
        if plugins:
            self._list.write_text(json.dumps(list(plugins)))

    def block_installation(self):
        """Puts a file where the folder of the plug-ins has to be."""
        (self.vault / ".obsidian/plugins").write_text("in the way")

    def plugin_files(self):
        """The files of our plug-in, {name: bytes}."""
        if not self.plugin_folder.is_dir():
            return {}
        return {file.name: file.read_bytes() for file in self.plugin_folder.iterdir()}

    def plugins(self):
        """The community plug-ins that are switched on."""
        return json.loads(self._list.read_text()) if self._list.exists() else []

    def switch_plugins_off(self):
        self._list.write_text("[]")

    @property
    def _list(self):
        return self.vault / ".obsidian/community-plugins.json"

    @staticmethod
    def _icon():
        color = "#%02x%02x%02x" % ICON_COLOR
        rows = ",\n".join('"' + "x" * ICON_SIZE + '"' for _ in range(ICON_SIZE))
        head = f'"{ICON_SIZE} {ICON_SIZE} 1 1",\n"x c {color}"'
        return f"/* XPM */\nstatic char *icon[] = {{\n{head},\n{rows}\n}};\n"
