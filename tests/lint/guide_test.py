#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""guide.py finds what it is there for, and lets the like of it pass that is none."""
import tempfile
import unittest
from pathlib import Path

import guide

FORM = """
class frmDoor : public Screen {
    Button cmdSave{*this, u"cmdSave"_s, {.caption = u" &ذخيره"_s}};
};
"""
SOURCE = """
void f() {
    box(u"  آيا  مطمئن "_s
        "هستيد ؟"_s); // u"نه"_s
    box(u"تعداد : "_s + QString::number(3) + u" نفر"_s + u"\\r\\nپايان "_s);
}
"""


def page(body, head='<html dir="rtl" lang="fa">'):
    return f"<!DOCTYPE html>{head}<body>{body}</body></html>"


class GuideTest(unittest.TestCase):
    def findings(self, files):
        tree = {
            "app/catalogue.cpp": 'catalogue.add(u"frmDoor"_s, makeScreen<frmDoor>);\n',
            "core/frmDoor.h": FORM,
            "core/frmDoor.cpp": SOURCE,
            "docs/guide/pictures.txt": "# name from\n",
            "docs/guide/index.html": page('<a href="frmDoor.html">در</a>'),
            "docs/guide/frmDoor.html": page("<p>متن</p>"),
        }
        with tempfile.TemporaryDirectory() as root:
            for name, text in {**tree, **files}.items():
                path = Path(root, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                if text is not None:
                    path.write_text(text, encoding="utf-8")
            return list(guide.check(root))

    def of_page(self, body, **others):
        return self.findings({"docs/guide/frmDoor.html": page(body), **others})

    def assert_one(self, found, start):
        self.assertEqual(len(found), 1, found)
        self.assertTrue(found[0].startswith(start), found)

    def test_a_sound_guide_passes(self):
        self.assertEqual(self.findings({}), [])

    def test_the_programs_words_pass_letter_for_letter(self):
        for words in ("ذخيره", "آيا  مطمئن هستيد ؟", "تعداد : … نفر<br>پايان"):
            self.assertEqual(self.of_page(f"<p><q>{words}</q></p>"), [], words)

    def test_other_words_are_found(self):
        for words in ("ذخیره", "آيا مطمئن هستيد ؟", "مطمئن", "تعداد", "نه", "تعداد : … کس"):
            self.assert_one(self.of_page(f"<p><q>{words}</q></p>"), "docs/guide/frmDoor.html: the program does not say")

    def test_a_link_that_leads_nowhere_is_found(self):
        self.assert_one(self.of_page('<a href="frmGone.html">x</a>'), "docs/guide/frmDoor.html: frmGone.html does not")

    def test_a_picture_that_is_missing_is_found(self):
        found = self.of_page('<img src="pictures/door.png" alt="در">',
                             **{"docs/guide/pictures.txt": "door door-open\n"})
        self.assert_one(found, "docs/guide/frmDoor.html: pictures/door.png does not exist")

    def test_a_picture_that_no_page_shows_and_one_that_is_not_listed_are_found(self):
        self.assert_one(self.findings({"docs/guide/pictures.txt": "door door-open\n"}),
                        "docs/guide/pictures.txt: door.png is shown on no page")
        found = self.of_page('<img src="pictures/door.png" alt="در">', **{"docs/guide/pictures/door.png": "png"})
        self.assert_one(found, "docs/guide/pictures.txt: door.png is not listed")

    def test_a_form_without_a_page_is_found(self):
        catalogue = 'catalogue.add(u"frmDoor"_s, a);\ncatalogue.add(u"frmMain"_s, b);\n'
        self.assert_one(self.findings({"app/catalogue.cpp": catalogue}), "docs/guide: frmMain has no page")
        self.assert_one(self.findings({"parties/frmCode.h": "class frmCode : public Screen {\n"}),
                        "docs/guide: frmCode has no page")

    def test_a_page_that_is_not_reached_is_found(self):
        lost = page('<a href="index.html">x</a>')
        self.assert_one(self.findings({"docs/guide/lost.html": lost}), "docs/guide/lost.html: no way leads here")

    def test_a_tag_that_the_viewer_does_not_know_is_found(self):
        self.assert_one(self.of_page("<video></video>"), "docs/guide/frmDoor.html: <video> is not understood")

    def test_tags_that_are_crossed_or_left_open_are_found(self):
        self.assertTrue(self.of_page("<ul><li>x</ul>"))

    def test_a_page_of_another_direction_is_found(self):
        found = self.findings({"docs/guide/frmDoor.html": page("x", '<html lang="fa">')})
        self.assert_one(found, 'docs/guide/frmDoor.html: <html> is not dir="rtl"')

    def test_letters_that_a_search_passes_over_are_found(self):
        for letter in ("\u06cc", "\u0643"):
            self.assert_one(self.of_page(f"<p>{letter}</p>"), "docs/guide/frmDoor.html: has a yeh or kaf")


if __name__ == "__main__":
    unittest.main()
