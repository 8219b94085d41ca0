"""Desktops that one test after another has: to start one takes longer than most tests."""


class DesktopPool:
    def __init__(self):
        self.desktops = {}  # those that nobody has, by their options
        self.options = {}  # of those that somebody has

    def take(self, make, **options):
        """A desktop that `make` makes with these options or has made, as good as new, for a user who has
        never been there."""
        key = repr((make, sorted(options.items())))
        if key in self.desktops:
            desktop = self.desktops.pop(key)
            desktop.welcome()
        else:
            desktop = make(**options)
        self.options[desktop] = key
        return desktop

    def give_back(self, desktop):
        key = self.options.pop(desktop)
        try:
            is_like_new = desktop.hand_on()
        except BaseException:
            desktop.close()
            raise
        if is_like_new and key not in self.desktops:
            self.desktops[key] = desktop
        else:
            desktop.close()

    def close(self):
        while self.desktops:
            self.desktops.popitem()[1].close()
