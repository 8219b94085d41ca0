"""Screenshots and what is on them."""


class Picture:
    """An image of 8-bit RGB pixels, from a binary PPM."""

    def __init__(self, ppm):
        self.ppm = ppm
        fields, position = [], 0
        while len(fields) < 4:
            while ppm[position : position + 1].isspace():
                position += 1
            start = position
            while not ppm[position : position + 1].isspace():
                position += 1
            word = ppm[start:position]
            if word.startswith(b"#"):
                position = ppm.index(b"\n", position)
            else:
                fields.append(word)
        magic, self.width, self.height, depth = fields[0], *(int(field) for field in fields[1:])
        if magic != b"P6" or depth != 255:
            raise ValueError(f"not a PPM with 8 bits per colour: {magic!r}, {depth}")
        self.pixels = memoryview(ppm)[position + 1 :]
        if len(self.pixels) < self.width * self.height * 3:
            raise ValueError("the picture is cut off")

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
        path.write_bytes(self.ppm)
