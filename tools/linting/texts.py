"""Every text that users see has a German and an English half.

A text is written as one literal "German|English", or as two literals side by side, as in TRANSLATE(u"ja", u"yes"). Two
rules find one that is not. What is handed to something that shows it (a caption, a tool tip, a menu entry, a control of
a design) needs both halves. And no other literal may read as German unless an English one stands beside it.

Two lists name the exceptions, one text a line, and a line that no source has any more is a problem as well:
texts_same.txt has what is the same in both languages, texts_german.txt what is said in German only. There each group
stands below a line that begins with "#" and tells the reason.
"""
import pathlib
import re
from dataclasses import dataclass, field

FOLDERS = ("src", "hosts")
SAME = pathlib.PurePosixPath("tools/linting/texts_same.txt")
GERMAN_ONLY = pathlib.PurePosixPath("tools/linting/texts_german.txt")

# Functions whose first two arguments are a text's halves.
PAIRS = {"TRANSLATE", "translate"}
# What shows a text, and which of its arguments (from 0) that is.
SHOWING = {
    "Caption": 0, "Title": 0, "TitleShort": 0, "Text": 0, "TextLeft": 0, "TextRight": 0, "ToolTipText": 0,
    "AccessibleName": 0, "HelpText": 0, "Description": 0, "AddItem": 0, "Info": 0, "Error": 0, "YesNo": 0, "Done": 0,
    "Input": 0, "TRANSLATEAUTO": 0, "say": 0, "sample": 0, "waitingSample": 0, "add": 1, "Add": 1, "design": 2,
}
# What sets a member by its name: the name is the argument 1, the value the next.
BY_NAME = {"setMember", "trySet"}

LEAST_LETTERS = 3  # of a text that has to be translated
TAG = re.compile(r"<[^<>]{1,8}>")
PLACEHOLDER = re.compile(r"\{\d+\}")
NAME_IN_CODE = re.compile(r"[a-z]+_\w+")
WORD = re.compile(r"[^\W\d_]+")

# What marks a text as German: words that no English sentence has, letters, and endings.
GERMAN_WORDS = frozenset("""
    aber abbrechen alle allen aller alles anzeigen auch auf aus ausgabe bei beenden beim bereits bist bitte bis damit dann
    darf das dass datei dateien dein deine deinen dem der dich diese dieser dieses dir doch drucken du durch ein eine einem
    einen einer eines eingabe eingeben erst etwas falsch fehler fertig frage fragen ganz gegen geht gibt gleich haben hast
    heute hier hilfe ich ihr ihre immer ist ja jetzt kann kannst kein keine klasse laden leider liste machen mehr mein mit
    muss musst nach nein neu neue nicht nichts noch nur oder ohne ordner punkte richtig sagen schon sehr sein seine seite
    sich sichern sie sind sprache starten stunde suchen und uns unter verbindung versuch versuche vom von weiter wenn werden
    wert wie wieder willkommen wir wird zahl zeigen zeile zeit zum zur
""".split())
UMLAUT = re.compile("[äöüÄÖÜß]")
ENDING = re.compile(r"\w{3,}(?:ung|ungen|keit|heit|schaft|ieren)$")


@dataclass
class Token:
    """A sign, a word or a text of a source; neighbouring literals are one text."""
    kind: str
    value: str
    line: int


@dataclass
class Scope:
    """The arguments of a call, or what stands between braces: it belongs to the call around it."""
    call: str
    sign: str
    argument: int = 0
    texts: list = field(default_factory=list)  # with the argument to which each belongs


@dataclass
class Literal:
    """A text and where it stands."""
    line: int
    text: str
    scope: Scope
    argument: int
    constant: str   # the name to which it is assigned
    beside: tuple   # the texts before and behind it, parted by a comma or a colon


def check(tree):
    judge = Judge(_listed(tree, SAME), _listed(tree, GERMAN_ONLY))
    problems = []
    for path in tree.cpp():
        if path.parts[0] in FOLDERS:
            problems += [f"{path}:{line}: {what}" for line, what in judge.problems(literals(tree.text(path)))]
    return problems + judge.unused()


def _listed(tree, path):
    """The texts of a list, with the place of each."""
    if path not in tree.paths:
        return {}
    return {_bare(_unescaped(line)): f"{path}:{number}" for number, line in enumerate(tree.text(path).splitlines(), 1)
            if line and not line.startswith("#")}


class Judge:
    """Knows the exceptions, and which of them it has met."""

    def __init__(self, same, german_only):
        self.same = same
        self.german_only = german_only
        self.met = set()

    def problems(self, found):
        constants = {literal.constant for literal in found}
        for literal in found:
            if not self._meets(self.german_only, literal.text) and _is_text(literal.text) \
                    and not _has_english_constant(literal, constants):
                what = self._problem(literal)
                if what:
                    yield literal.line, f"{what}: {_short(literal.text)}"

    def unused(self):
        return [f"{place}: no source has this text any more: {_short(text)}"
                for listed in (self.german_only, self.same) for text, place in listed.items() if place not in self.met]

    def _problem(self, literal):
        german, divider, english = literal.text.partition("|")
        if divider and (english or _is_shown(literal)):
            return self._compared(german, english)
        if literal.scope.call in PAIRS:
            return self._of_pair(literal)
        if _is_shown(literal):
            return None if self._is_same(literal.text) else "without an English half"
        if reads_german(literal.text) and not any(_is_english(text) for text in literal.beside):
            return "German without English beside it"
        return None

    def _of_pair(self, literal):
        """A half that is computed is not looked at."""
        german, english = ([text for at, text in literal.scope.texts if at == half] for half in (0, 1))
        if len(german) == len(english) == 1:
            return self._compared(german[0], english[0]) if literal.argument == 0 else None
        if literal.argument == 1 and reads_german(literal.text):
            return "the English half reads as German"
        if literal.argument == 0 and literal.scope.argument == 0:
            return "without an English half"
        return None

    def _compared(self, german, english):
        if not any(map(str.isalpha, _words_only(german))):
            return None
        if not any(map(str.isalpha, _words_only(english))):
            return None if self._is_same(f"{german}|{english}") else "without an English half"
        if _bare(german) != _bare(english):
            return "the English half reads as German" if reads_german(english) else None
        return "the same in German and English" if _has_letters(german) and not self._is_same(german) else None

    def _is_same(self, text):
        return self._meets(self.same, text)

    def _meets(self, listed, text):
        place = listed.get(_bare(text))
        self.met.add(place)
        return place is not None


def literals(source):
    """The texts of a source, each with the call in which it stands."""
    tokens = _tokens(source)
    scopes = [Scope("", "")]
    found = []
    for at, token in enumerate(tokens):
        scope = scopes[-1]
        if token.kind == "text":
            call = next(outer for outer in reversed(scopes) if outer.sign != "{" or outer is scopes[0])
            call.texts.append((call.argument, token.value))
            found.append(Literal(token.line, token.value, call, call.argument, _constant(tokens, at),
                                 tuple(_beside(tokens, at))))
        elif token.value in ("(", "{"):
            scopes.append(Scope(_called(tokens, at), token.value))
        elif token.value in (")", "}") and len(scopes) > 1:
            scopes.pop()
        elif token.value == "," and scope.sign == "(":
            scope.argument += 1
    return found


TOKEN = re.compile(r"""
    (?P<blank>\s+|//[^\n]*|/\*.*?\*/|\#[^\n]*)
  | (?:u8|u|U|L)?"(?P<text>(?:[^"\\\n]|\\.)*)"
  | (?P<character>(?:u8|u|U|L)?'(?:[^'\\\n]|\\.)+')
  | (?P<number>\d[\w.']*)
  | (?P<word>\w+)
  | (?P<sign>.)
""", re.VERBOSE | re.DOTALL)


def _tokens(source):
    found = []
    line = 1
    for match in TOKEN.finditer(source):
        kind = match.lastgroup
        if kind == "text" and found and found[-1].kind == "text":
            found[-1].value += _unescaped(match["text"])
        elif kind == "text":
            found.append(Token(kind, _unescaped(match["text"]), line))
        elif kind != "blank":
            found.append(Token(kind, match.group(), line))
        line += match.group().count("\n")
    return found


def _called(tokens, at):
    """The name before a bracket, and before a template's arguments."""
    before = at - 1
    if before >= 0 and tokens[before].value == ">":
        depth = 0
        while before >= 0:
            depth += {">": 1, "<": -1}.get(tokens[before].value, 0)
            before -= 1
            if depth == 0:
                break
    return tokens[before].value if before >= 0 and tokens[before].kind == "word" else ""


def _constant(tokens, at):
    return tokens[at - 2].value if at >= 2 and tokens[at - 1].value == "=" else ""


def _beside(tokens, at):
    for divider, other in ((at - 1, at - 2), (at + 1, at + 2)):
        if 0 <= other < len(tokens) and tokens[divider].value in (",", ":") and tokens[other].kind == "text":
            yield tokens[other].value


def _has_english_constant(literal, constants):
    """Long texts stand in two constants: HelpGerman and HelpEnglish."""
    return literal.constant.endswith("German") and literal.constant.replace("German", "English") in constants


def _is_shown(literal):
    call, argument = literal.scope.call, literal.argument
    if call in BY_NAME:
        return argument == 2 and any(at == 1 and SHOWING.get(name) == 0 for at, name in literal.scope.texts)
    return SHOWING.get(call) == argument


def reads_german(text):
    """Whether a text has something that is German and not English."""
    return any(word.lower() in GERMAN_WORDS or ENDING.match(word) or (len(word) > 1 and UMLAUT.search(word))
               for word in WORD.findall(_words_only(text)))


def _is_english(text):
    return bool(WORD.search(_words_only(text))) and not reads_german(text)


def _is_text(text):
    return _has_letters(text) and not NAME_IN_CODE.fullmatch(text)


def _has_letters(text):
    return sum(map(str.isalpha, _words_only(text))) >= LEAST_LETTERS


def _words_only(text):
    return PLACEHOLDER.sub(" ", TAG.sub(" ", text)).replace("&", "")


def _bare(text):
    """What is compared: without the mark of a letter's key, on one line with single blanks."""
    return " ".join(text.replace("&", "").split())


ESCAPE = re.compile(r"\\(?:x([0-9A-Fa-f]+)|u([0-9A-Fa-f]{4})|U([0-9A-Fa-f]{8})|(.))")
CONTROLS = {"n": "\n", "r": "\r", "t": "\t", "0": "\0"}


def _unescaped(text):
    def one(match):
        code = match[1] or match[2] or match[3]
        return chr(int(code, 16)) if code else CONTROLS.get(match[4], match[4])
    return ESCAPE.sub(one, text)


def _short(text):
    text = " ".join(text.split())
    return text if len(text) <= 80 else text[:79] + "…"
