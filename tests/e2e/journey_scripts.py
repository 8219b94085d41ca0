"""Scripts such as people write, and such as nobody would."""

HUGE_BYTES = 2_000_000
WORDS = "the prompter hangs right below the lens so that you can read every word of this".split()
RIGHT_TO_LEFT = "שלום לכולם וברוכים הבאים مرحبا بكم جميعا في هذا الحديث".split()
EMOJI = "👋 🎤 👩‍👩‍👧‍👦 🇩🇪 ❤️ 🧑🏽‍🚀 é ﷽ 𝔘".split()


def sentence(random, words=WORDS):
    return " ".join(random.choice(words) for _ in range(random.randint(3, 30)))


def talk(random):
    blocks = []
    for number in range(random.randint(1, 12)):
        blocks.append(f"## Part {number}")
        blocks += [f"{sentence(random)}, **{sentence(random)}**." for _ in range(4)]
        blocks.append("- [x] " + "\n  - ".join(sentence(random) for _ in range(3)))
        blocks.append("```\n" + sentence(random) + "\n```\n\n> *" + sentence(random) + "*")
    return "\n\n".join(blocks)


def small(random):
    return sentence(random)


def empty(_):
    return ""


def blank(random):
    return "\n \t" * random.randint(1, 50)


def huge(random):
    paragraph = talk(random) + "\n\n"
    return paragraph * (HUGE_BYTES // len(paragraph) + 1)


def one_long_line(random):
    return sentence(random) * 2000


def windows_lines(random):
    return talk(random).replace("\n", "\r\n")


def emoji(random):
    return "\n\n".join(sentence(random, EMOJI) for _ in range(10))


def right_to_left(random):
    return "\n\n".join("# " + sentence(random, RIGHT_TO_LEFT) for _ in range(10))


def control_characters(random):
    return f"{sentence(random)}\0{sentence(random)}\n\n\x01\x1b[31m\x7f {sentence(random)}\u2028end"


def unfinished_markers(random):
    return "\n".join("*_`~[>#-"[n % 8] * random.randint(1, 300) + " word" for n in range(40))


WEIGHTS = {
    talk: 8,
    small: 4,
    windows_lines: 3,
    emoji: 3,
    right_to_left: 3,
    control_characters: 3,
    unfinished_markers: 2,
    blank: 1,
    empty: 1,
    one_long_line: 1,
    huge: 1,
}


def any_script(random):
    """(the kind's name, the text)"""
    kind = random.choices(list(WEIGHTS), WEIGHTS.values())[0]
    return kind.__name__, kind(random)
