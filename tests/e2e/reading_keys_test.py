"""The keys of presenter remotes, while the prompter has the keyboard."""

import unittest

from harness import wait_until
from harness.waiting import holds_for
from talk_case import PROMPTER, TalkTestCase, talk

TALK = "".join(f"# Section {name}\n\n{talk(12)}\n\n" for name in ("one", "two", "three"))


class Keys(TalkTestCase):
    def setUp(self):
        super().setUp()
        self.start(self.write_script(TALK))
        self.wait_for_script(TALK.replace("# ", ""))
        self.area = self.script().area
        self.click_on(self.script())

    def brightest(self):
        return max(max(row) for row in self.desktop.region(*self.area))

    def key_moves_to(self, key, place):
        self.desktop.key(key)
        wait_until(lambda: abs(self.position() - place) < 0.1, f"{key} leads to {place}")

    def wait_for(self, **values):
        def has_come():
            status = self.status()
            return {name: status[name] for name in values} == values

        wait_until(has_come, f"the status tells {values}")

    def test_start_and_stop_and_change_the_pace(self):
        for on, off in (("space", "space"), ("F5", "F5")):
            self.desktop.key(on)
            self.wait_for(autoScroll=True)
            self.assert_scrolls_on()
            self.desktop.key(off)
            self.wait_for(autoScroll=False)
            place = self.position()
            self.assertTrue(holds_for(lambda: self.position() == place, 0.3))
        speed = self.status()["speed"]
        self.desktop.key("plus", "equal")
        self.wait_for(speed=speed + 0.5)
        self.desktop.key("minus")
        self.wait_for(speed=speed + 0.25)

    def test_move_by_pages_and_to_headings(self):
        page = self.area[3] - 20
        self.desktop.key("Page_Down")
        places = [self.position()]
        wait_until(
            lambda: places.append(self.position()) or places[-1] == page, "the page is turned"
        )
        self.assertGreater(len({place for place in places if 0 < place < page}), 2, places)
        self.desktop.key("Page_Down", "Page_Down")
        self.key_moves_to("Page_Up", 2 * page)
        self.key_moves_to("End", self.status()["maximumScrollPosition"])
        self.key_moves_to("Home", 0)
        self.desktop.key("3")
        wait_until(lambda: self.position() > 2 * page, "the third heading is there")
        third = self.position()
        self.key_moves_to("1", 0)
        self.ctl("heading", 3)
        self.assertEqual(self.position(), third)

    def test_black_the_text_out_and_bring_it_back(self):
        self.assertGreater(self.brightest(), 150)
        before = self.desktop.region(*self.area)
        for key in ("b", "period"):
            self.desktop.key(key)
            wait_until(lambda: self.brightest() == 0, "nothing is seen")
            self.control(PROMPTER, "alert", "The text is blacked out")
            self.desktop.key(key)
            wait_until(lambda: self.desktop.region(*self.area) == before, "the text is back")
        self.ctl("black", "on")
        wait_until(lambda: self.brightest() == 0, "nothing is seen")
        self.wait_for(black=True)
        left, top, width, height = self.area
        self.desktop.click(left + width // 2, top + height // 2)
        wait_until(lambda: self.desktop.region(*self.area) == before, "a click brings it back")

    def test_change_the_guide_and_the_mirroring(self):
        self.desktop.key("g")
        self.wait_for(guide="marker")
        self.desktop.key("g")
        self.wait_for(guide="band")
        self.desktop.key("g")
        self.wait_for(guide="none")
        self.desktop.key("m")
        self.wait_for(mirror="horizontal")
        self.desktop.key("m")
        self.wait_for(mirror="none")

    def test_are_told_on_a_sheet(self):
        for key in ("F1", "question"):
            self.desktop.key(key)
            for text in ("Space, F5", "Start or stop", "F1, ?"):
                label = self.control(PROMPTER, "label", text)
                self.assertTrue(label.lies_in(self.area), text)
            self.wait_for(keys=True)
            self.desktop.key("Escape")
            self.wait_for(keys=False)
        self.ctl("keys", "on")
        self.control(PROMPTER, "label", "Space, F5")
        self.desktop.key("space")
        self.wait_for(autoScroll=True)
        self.desktop.key("space", "F1")
        self.wait_for(autoScroll=False, keys=False)
        self.key_moves_to("End", self.status()["maximumScrollPosition"])


if __name__ == "__main__":
    unittest.main()
