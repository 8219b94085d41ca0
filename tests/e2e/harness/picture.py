"""Screenshots and what is on them."""


class Picture:
    """An image of 8-bit RGB pixels, from four bytes each as X servers give them."""

    def __init__(self, width, height, data):
        self.width, self.height = width, height
        self.pixels = bytearray(3 * width * height)
        for channel in range(3):
            self.pixels[channel::3] = data[2 - channel :: 4]

    @classmethod
    def of_file(cls, data):
        """Of the bytes of a PPM file."""
        kind, size, greatest, pixels = data.split(b"\n", 3)
        assert (kind, greatest) == (b"P6", b"255"), data[:20]
        picture = cls(0, 0, b"")
        picture.width, picture.height = map(int, size.split())
        picture.pixels = bytearray(pixels)
        return picture

    def __eq__(self, other):
        return (self.width, self.pixels) == (other.width, other.pixels)

    def pixel(self, x, y):
        """(red, green, blue) with the origin at the top left."""
        if not (0 <= x < self.width and 0 <= y < self.height):
            raise IndexError(f"({x}, {y}) is outside of {self.width} x {self.height}")
        offset = (y * self.width + x) * 3
        return tuple(self.pixels[offset : offset + 3])

    def region(self, x, y, width, height):
        """The rows of pixels of a rectangle, as bytes that can be compared."""
        return [
            bytes(self.pixels[(row * self.width + x) * 3 : (row * self.width + x + width) * 3])
            for row in range(y, y + height)
        ]

    def share(self, x, y, width, height, accepts):
        """The share, 0 to 1, of a rectangle's pixels that accepts(red, green, blue) takes."""
        taken = 0
        for row in self.region(x, y, width, height):
            taken += sum(
                1 for i in range(0, len(row), 3) if accepts(row[i], row[i + 1], row[i + 2])
            )
        return taken / (width * height)

    def save(self, path):
        path.write_bytes(b"P6\n%d %d\n255\n" % (self.width, self.height) + self.pixels)
