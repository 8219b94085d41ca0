"""Media keys, as the desktop and headsets send them: to whatever player is on the session bus."""

import unittest

from harness import wait_until
from talk_case import TalkTestCase, talk

TALK = f"# The talk\n\n{talk(30)}\n\n# The end\n\n{talk(30)}"


class MediaKeys(TalkTestCase):
    def player(self, *words):
        """What playerctl, a player's remote control, prints."""
        return self.desktop.run("playerctl", "--player=tessaline", *words, check=False).strip()

    def players(self):
        return self.desktop.run("playerctl", "--list-all", check=False).split()

    def wait_for_player(self, there):
        wait_until(
            lambda: (self.players() == ["tessaline"]) == there, f"a player is there: {there}"
        )

    def property(self, name):
        return self.desktop.run(
            *("gdbus", "call", "--session", "--dest", "org.mpris.MediaPlayer2.tessaline"),
            *("--object-path", "/org/mpris/MediaPlayer2"),
            *("--method", "org.freedesktop.DBus.Properties.Get"),
            *("org.mpris.MediaPlayer2.Player", name),
        ).strip()

    def test_drive_the_prompter_once_they_are_wanted(self):
        self.start(self.write_script(TALK))
        self.wait_for_script(TALK.replace("# ", ""))
        self.assertEqual(self.players(), [], "nobody asked for it")
        self.ctl("media-keys", "on")
        self.wait_for_player(True)
        self.assertEqual(self.player("metadata", "title"), "The talk")
        self.assertEqual(self.player("status"), "Paused")

        self.player("play")
        wait_until(lambda: self.player("status") == "Playing", "it plays")
        self.assert_scrolls_on()
        self.player("play-pause")
        wait_until(lambda: self.player("status") == "Paused", "it stands")
        self.assertFalse(self.status()["autoScroll"])

        self.player("next")
        wait_until(lambda: self.position() > 200, "the second heading is there")
        self.player("previous")
        wait_until(lambda: self.position() == 0, "the first heading is there")

        length = int(self.player("metadata", "mpris:length")) / 1e6
        self.player("position", str(length / 2))
        most = self.status()["maximumScrollPosition"]
        wait_until(lambda: abs(self.position() - most / 2) < most / 20, "the middle is there")
        self.assertAlmostEqual(float(self.player("position")), length / 2, delta=length / 20)
        self.player("stop")
        wait_until(lambda: self.position() == 0, "a stop leads to the beginning")

        self.assertEqual(self.property("Rate"), "(<1.0>,)")
        self.ctl("speed", 3)
        wait_until(lambda: self.property("Rate") == "(<1.5>,)", "the rate is the speed")

        self.ctl("hide")
        self.wait_for_player(False)
        self.ctl("show")
        self.wait_for_player(True)
        self.ctl("media-keys", "off")
        self.wait_for_player(False)

    def test_tell_who_listens_what_changes(self):
        self.start(self.write_script(TALK))
        self.ctl("media-keys", "on")
        self.wait_for_player(True)
        listener = self.desktop.start(
            "playerctl",
            ["playerctl", "--player=tessaline", "--follow", "status"],
        )
        wait_until(lambda: listener.stdout().split() == ["Paused"], "it is told of the state")
        self.ctl("play")
        wait_until(lambda: listener.stdout().split()[-1] == "Playing", "the start is told")
        self.ctl("pause")
        wait_until(lambda: listener.stdout().split()[-1] == "Paused", "the pause is told")


if __name__ == "__main__":
    unittest.main()
