"""The rules of tools/lint, on small made-up trees."""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

from linting import commits, files, includes, sources, texts, words  # noqa: E402


class MadeUpTree(files.Tree):
    """A tree whose files are given as a dictionary from path to text."""

    def __init__(self, texts):
        self.texts = {pathlib.PurePosixPath(name): text for name, text in texts.items()}
        self.paths = sorted(self.texts)

    def text(self, path):
        return self.texts[path]


CORE = {"src/core/Text.h": "#pragma once\n"}
TERM = {"src/term/Term.h": "#pragma once\n"}


class Includes(unittest.TestCase):
    def problems(self, path, text):
        return includes.check(MadeUpTree({**CORE, **TERM, path: text}))

    def test_what_lies_below_may_be_included(self):
        self.assertEqual(self.problems("src/chem/Mass.h", '#pragma once\n#include "core/Text.h"\n'), [])

    def test_what_lies_above_may_not(self):
        self.assertEqual(self.problems("src/core/Mass.cpp", '#include "term/Term.h"\n'),
                         ['src/core/Mass.cpp:1: "term/Term.h" is not below src/core'])

    def test_a_source_may_include_a_subsystem_before_its_own(self):
        self.assertEqual(self.problems("src/calc/Mass.cpp", '#include "term/Term.h"\n'), [])

    def test_a_header_may_not(self):
        self.assertEqual(self.problems("src/calc/Mass.h", '#pragma once\n#include "term/Term.h"\n'),
                         ['src/calc/Mass.h:2: "term/Term.h" is not below src/calc'])

    def test_a_source_may_not_include_a_later_subsystem(self):
        self.assertEqual(self.problems("src/chem/Mass.cpp", '#include "term/Term.h"\n'),
                         ['src/chem/Mass.cpp:1: "term/Term.h" is not below src/chem'])

    def test_the_root_and_its_sub_objects_may_include_every_subsystem(self):
        for path in ("src/app/cls_App.cpp", "src/app/cls_AppTools.cpp", "src/app/StartUp.cpp", "src/results/cls_AppRate.cpp"):
            self.assertEqual(self.problems(path, '#include "term/Term.h"\n'), [], path)

    def test_the_adapter_without_a_display_knows_nothing_of_the_one_with_it(self):
        tree = {"src/qt/desktop/Window.h": "#pragma once\n", "src/qt/base/Clock.cpp": '#include "qt/desktop/Window.h"\n'}
        self.assertEqual(includes.check(MadeUpTree(tree)),
                         ['src/qt/base/Clock.cpp:1: "qt/desktop/Window.h" is not below src/qt/base'])

    def test_an_include_is_written_from_the_root_of_the_sources(self):
        self.assertEqual(self.problems("src/core/Mass.cpp", '#include "Text.h"\n'),
                         ['src/core/Mass.cpp:1: "Text.h" is written from the folder src/: "core/Text.h"'])

    def test_qt_stays_in_the_adapter_and_in_the_start_of_programs(self):
        for path in ("src/qt/base/Clock.cpp", "hosts/app/main.cpp", "tests/qt/ClockTest.cpp"):
            self.assertEqual(self.problems(path, "#include <QString>\n"), [], path)
        for path in ("src/core/Mass.cpp", "src/headless/Clock.cpp", "hosts/app/Window.cpp", "tests/core/MassTest.cpp"):
            self.assertEqual(len(self.problems(path, "#include <QString>\n")), 1, path)

    def test_a_header_without_a_guard_is_found(self):
        self.assertEqual(self.problems("src/core/Mass.h", "int mass();\n"),
                         ["src/core/Mass.h:1: a header begins with #pragma once"])


class Sources(unittest.TestCase):
    def test_a_listed_source_is_fine_from_any_folder_above(self):
        tree = {"src/CMakeLists.txt": "target_sources(phial PRIVATE core/Text.cpp)", "src/core/Text.cpp": ""}
        self.assertEqual(sources.check(MadeUpTree(tree)), [])

    def test_a_source_that_nobody_builds_is_found(self):
        tree = {"src/core/CMakeLists.txt": "target_sources(phial PRIVATE LongText.cpp)", "src/core/Text.cpp": ""}
        self.assertEqual(sources.check(MadeUpTree(tree)), ["src/core/Text.cpp:1: no CMakeLists.txt names this file"])

    def test_a_fuzz_target_without_inputs_is_found(self):
        tree = {"tests/fuzz/CMakeLists.txt": "phial_fuzz(terms)\nphial_fuzz(masses)\n",
                "tests/fuzz/terms.cpp": "", "tests/fuzz/masses.cpp": "", "tests/fuzz/corpus/terms/water": "H2O"}
        self.assertEqual(sources.check(MadeUpTree(tree)), [
            "tests/fuzz/CMakeLists.txt:1: fuzz target masses has no files in tests/fuzz/corpus/masses"])


class Commits(unittest.TestCase):
    def problems(self, subject):
        return list(commits._problems_of(subject, {"core", "docs"}))

    def test_a_sentence_behind_its_area_is_fine(self):
        self.assertEqual(self.problems("core: read the last line of a file, too"), [])

    def test_other_subjects_are_found(self):
        for subject in ("mend the lists", "core:no blank", "core: ends with a dot.", "attic: sweep the floor",
                        "core: " + "a" * 70):
            self.assertEqual(len(self.problems(subject)), 1, subject)


class Words(unittest.TestCase):
    def problems(self, line):
        return words.check(MadeUpTree({"docs/notes.md": line}))

    def test_ordinary_words_that_look_alike_are_fine(self):
        self.assertEqual(self.problems("A specific part of the work in build/work, specified twice in parts 2 and 3."), [])

    def test_references_to_what_a_reader_cannot_open_are_found(self):
        for line in ("see Part" + " 2.3", "as the sp" + "ec says", "in /wor" + "k/main", "TO" + "DO: later"):
            self.assertEqual(len(self.problems(line)), 1, line)


class Texts(unittest.TestCase):
    def problems(self, source, **lists):
        tree = {"src/app/Window.cpp": source}
        for name, lines in lists.items():
            tree[f"tools/linting/texts_{name}.txt"] = "\n".join(lines)
        return texts.check(MadeUpTree(tree))

    def test_texts_with_both_halves_are_fine(self):
        for source in ('label.Caption(u"Fertig|Done");',
                       'form->Caption(LNG()->TRANSLATE(u"Fertig", u"Done"));',
                       'design<ctl_Label>(u"lab_Name", {0, 0, 9, 9}, u"Dein Name:|Your name:").inside(u"pan_Left"),',
                       'menu.add(u"mnu_File", u"&Datei|&File");',
                       'button->Caption(done ? translate(u"Weiter", u"Next") : translate(u"Prüfen", u"Check"));',
                       'setMember(*label, u"Caption", say(u"Ja|Yes"));',
                       'constexpr BoxText Yes{u"Ja", u"Yes"};',
                       'return english ? u"Close" : u"Schließen";',
                       'constexpr StringView HelpGerman = u"Hilfe zu allem";'
                       'constexpr StringView HelpEnglish = u"Help on everything";'):
            self.assertEqual(self.problems(source), [], source)

    def test_what_is_no_text_for_users_is_fine(self):
        for source in ('throw RuntimeError(5, u"no such member");', "// Nicht für alle\nlabel.Caption(u\"\");",
                       'members::property<Label, String, &Label::Caption, &Label::Caption>(u"Caption"),',
                       'label.Caption(u"{1} = 5 | 7");', 'menu.add(u"mnu_Sep", u"-");', 'label.Caption(task.name);',
                       'return translate(level.german, level.english);', 'find(u"but_mehr");', "const char16_t mark = u'\"';"):
            self.assertEqual(self.problems(source), [], source)

    def test_a_text_in_one_language_is_found(self):
        for source in ('label.Caption(u"Fertig");', 'label.Caption(u"Done");', 'label.Caption(u"Fertig|");',
                       'label.Caption(u"Punkte: " + points);', 'label->frame().ToolTipText(u"Bitte "\n    u"warten");',
                       'menu.add(u"mnu_File", u"&Datei");', 'bar->BUTTONS()->Add(u"DIALOG.OK();", u"Fertig");',
                       'design<ctl_Label>(u"lab_Name", {0, 0, 9, 9}, u"Dein Name:").at(2),',
                       'setMember(*label, u"Caption", u"Fertig");', 'LNG()->TRANSLATE(u"Fertig", u"")',
                       'LNG()->TRANSLATE(u"Fertig")', 'constexpr StringView NoName = u"Bitte gib einen Namen ein.";',
                       'constexpr StringView ButtonGerman = u"Abbrechen";', 'say(u"Nein|");'):
            self.assertEqual(len(self.problems(source)), 1, source)

    def test_a_german_text_as_the_english_half_is_found(self):
        for source in ('label.Caption(u"Fertig|Bitte warten");', 'label.Caption(u"Fertig|Fertig");',
                       'LNG()->TRANSLATE(u"Fertig", u"Bitte warten")', 'LNG()->TRANSLATE(u"Fertig", u"Fertig")'):
            self.assertEqual(len(self.problems(source)), 1, source)

    def test_the_problem_tells_line_and_text(self):
        self.assertEqual(self.problems('\n\nlabel.Caption(u"Fertig");'),
                         ["src/app/Window.cpp:3: without an English half: Fertig"])

    def test_exceptions_are_listed(self):
        self.assertEqual(self.problems('label.Caption(u"&Info|&Info");', same=["# Words", "Info"]), [])
        self.assertEqual(self.problems('dialogs.Error(u"Nicht gefunden!");', german=["Nicht gefunden!"]), [])

    def test_an_exception_that_nobody_needs_any_more_is_found(self):
        self.assertEqual(self.problems("int i;", german=["# Boxes", "Nicht gefunden!"]),
                         ["tools/linting/texts_german.txt:2: no source has this text any more: Nicht gefunden!"])

    def test_only_programs_and_the_library_are_read(self):
        self.assertEqual(texts.check(MadeUpTree({"tests/app/WindowTest.cpp": 'label.Caption(u"Fertig");'})), [])


if __name__ == "__main__":
    unittest.main()
