"""Tones of struck bars and bells, as lists of samples.

A tone is a sum of partials, each a sine that dies away at its own pace. All steps are additions and multiplications,
which every computer rounds alike; the mathematical library, whose last digit differs from one to the next, is not
asked.
"""

RATE = 44100
ATTACK = 0.003  # seconds from silence to full loudness
RELEASE = 0.03  # seconds in which what is left at the end goes to silence
INAUDIBLE = 3e-5

PI = 3.141592653589793
SEMITONE = 1.0594630943592953  # the twelfth root of 2
SEMITONES = {"C": -9, "D": -7, "E": -5, "F": -4, "G": -2, "A": 0, "B": 2}

# Of each instrument's partials: how many times the note's frequency, how loud, and seconds to a thousandth of that.
INSTRUMENTS = {
    "bell": [(1, 1.0, 1.5), (2, 0.45, 1.0), (2.76, 0.25, 0.6), (4.07, 0.12, 0.4), (5.4, 0.06, 0.25)],
    "marimba": [(1, 1.0, 0.6), (3.93, 0.22, 0.18), (9.2, 0.06, 0.07)],
    "wood": [(1, 1.0, 0.05), (2.6, 0.5, 0.025), (4.3, 0.2, 0.012)],
}


def frequency(note):
    """Of "A4" and the like, in hertz; A4 is 440."""
    steps = SEMITONES[note[0]] + 12 * (int(note[-1]) - 4) + note.count("#")
    value = 440.0
    for _ in range(abs(steps)):
        value = value * SEMITONE if steps > 0 else value / SEMITONE
    return value


def rotation(angle):
    """Cosine and sine, by their series; for angles from 0 to pi."""
    cosine, sine, term = 0.0, 0.0, 1.0
    for at in range(40):
        sign = 1 if at % 4 < 2 else -1
        if at % 2:
            sine += sign * term
        else:
            cosine += sign * term
        term = term * angle / (at + 1)
    return cosine, sine


def shrinking(samples):
    """The factor that takes a value to a thousandth within so many steps."""
    # e to the power of -ln(1000) / samples, by its series.
    exponent = -6.907755278982137 / samples
    value, term = 0.0, 1.0
    for at in range(1, 20):
        value += term
        term = term * exponent / at
    return value


def smooth(part):
    """From 0 to 1, level at both ends."""
    return part * part * (3 - 2 * part)


def audible_samples(loudness, factor):
    """How long something that shrinks by the factor with each sample can be heard."""
    count = 0
    while loudness >= INAUDIBLE:
        loudness *= factor
        count += 1
    return count


def add_partial(samples, begin, hertz, loudness, seconds):
    """Adds one partial from a sample on, as long as it can be heard and there is room."""
    if hertz >= RATE / 2.5:
        return
    cosine, sine = rotation(2 * PI * hertz / RATE)
    factor = shrinking(seconds * RATE)
    cosine, sine = cosine * factor, sine * factor
    x, y = loudness, 0.0
    attack = int(ATTACK * RATE)
    end = min(len(samples), begin + audible_samples(loudness, factor))
    for at in range(begin, end):
        samples[at] += y * smooth((at - begin) / attack) if at - begin < attack else y
        x, y = x * cosine - y * sine, x * sine + y * cosine


def add_note(samples, instrument, note, begin, loudness):
    """Adds a note that begins at a time in seconds."""
    hertz = frequency(note)
    for times, part, seconds in INSTRUMENTS[instrument]:
        add_partial(samples, int(begin * RATE), hertz * times, loudness * part, seconds)


def fade_out(samples):
    """Takes the end to exact silence."""
    release = int(RELEASE * RATE)
    for at in range(release):
        samples[-1 - at] *= smooth(at / release)
