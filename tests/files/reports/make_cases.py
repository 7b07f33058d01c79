#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the files of the approved reports: one folder a case, in it the file to be checked and `options`.

usage: make_cases.py      writes beside itself; approved reports are not touched

A case that was added gets its report from a run of the tests, which leave it as approved.received; it is approved by
renaming it, after every line of it was read.
"""
from pathlib import Path

HERE = Path(__file__).resolve().parent
CONTROL = "KCDk087lIDEuMS4zOCAtIDg5LzAzLzAzICk="  # the version of this program
PAYER = ["123456789012", "01", "1389", "02", "1", "", "علي", "رضايي", "مرکزي", "1234567891", "1234567890", "02188776655",
         "تهران", "", "حسن", "کريمي", "مدير", "", "", "", ""]
LEGAL = PAYER[:4] + ["2", "1", ""] + PAYER[7:9] + ["411111111111"] + PAYER[10:]
PAYEE = ["1234567891", "مريم", "احمدي", "رضا", "1", "1234567890", "کارمند", "5", "4", "3", "1", "1", "", "1", "",
         "12345678"] + ["1000000"] * 18
FOREIGNER = ["A1234567"] + PAYEE[1:11] + ["2", "افغانستان"] + PAYEE[13:]
OTHER_INSURER = PAYEE[:13] + ["0", "بيمه ايران"] + PAYEE[15:]
SUMMARY = ["123456789012", "1389", "02"] + ["25000000"] * 12 + ["13890303", "12", "0", "1", "", "", "", "", "", "500"]
CHEQUE = SUMMARY[:18] + ["2", "123456", "13890303", "11", "مرکزي", "1234567890123", "500"]


def line(fields, **changes):
    """The fields joined by commas; f3="x" puts x into field 3."""
    fields = list(fields)
    for name, value in changes.items():
        fields[int(name[1:]) - 1] = value
    return ",".join(fields)


def write(name, data, options="", file="WH138902.TXT"):
    folder = HERE / name
    folder.mkdir(exist_ok=True)
    (folder / file).write_bytes(data)
    (folder / "options").write_text(options + "\n", encoding="utf-8")


def utf16(*lines, last_end=True):
    text = "\r\n".join(lines) + ("\r\n" if last_end else "")
    return b"\xff\xfe" + text.encode("utf-16-le", "surrogatepass")


def payer(name, field, value, base=None, options="errors-only"):
    # Without a line end the payer may stand alone: the report stays short enough to be read.
    write(f"wh_payer_{field:02}{name}", utf16(line(base or PAYER, **{f"f{field}": value}), last_end=False), options)


def payee(name, field, value, base=None, options="errors-only"):
    write(f"wh_payee_{field:02}{name}", utf16(line(PAYER), line(base or PAYEE, **{f"f{field}": value})), options)


def summary(name, field, value, base=None, options="errors-only"):
    write(f"wk_{field:02}{name}", utf16(line(base or SUMMARY, **{f"f{field}": value})), options, "WK138902.TXT")


def whole_wh(name, *lines, options="errors-only", **more):
    write("wh_" + name, utf16(*lines, **more), options)


def whole_wk(name, *lines, options="errors-only", **more):
    write("wk_" + name, utf16(*lines, **more), options, "WK138902.TXT")


def payer_fields():
    for field, value in {1: "12a", 2: "123456x", 3: "138x9", 4: "0x2", 5: "1x", 8: "1" * 51, 9: "1" * 31, 11: "12x",
                         12: "0218877665512345678x9", 13: "آ" * 151, 14: "x" * 11, 15: "1" * 16, 16: "1" * 51,
                         17: "1" * 31, 18: "x" * 11, 19: "1" * 16, 20: "1" * 51, 21: "1" * 31}.items():
        payer("", field, value)
    payer("_legal", 6, "1x", LEGAL)
    payer("_natural", 6, "1")
    payer("_natural", 7, "1" * 16)
    payer("_legal", 7, "علي", LEGAL)
    payer("_natural", 10, "12x")
    payer("_legal", 10, "12x", LEGAL)
    payer("_empty", 8, "")
    payer("_filled", 20, "کريمي", options="")


def payee_fields():
    for field, value in {2: "1" * 16, 3: "1" * 51, 4: "1" * 16, 5: "12x", 6: "12x", 7: "1" * 21, 8: "12x", 9: "1x",
                         10: "12x", 11: "12x", 12: "1x", 14: "1x"}.items():
        payee("", field, value)
    for field in range(17, 35):
        payee("", field, "1234567890x")
    payee("_national", 1, "1234x")
    payee("_national_empty", 1, "")
    payee("_national_wrong_digit", 1, "1234567890")
    payee("_foreign", 1, "A1234567890", FOREIGNER)
    payee("_foreign_empty", 1, "", FOREIGNER, options="")
    payee("_empty", 5, "", options="")
    payee("_empty", 6, "", options="")
    payee("_foreign", 13, "1" * 21, FOREIGNER)
    payee("_national", 13, "ايران")
    payee("_other", 15, "1" * 16, OTHER_INSURER)
    payee("_known", 15, "ايران")
    # Whatever fails the digits check of the insurance number ended the run before; its passing line alone shows it.
    payee("_given", 16, "1234567890123", options="")
    payee("_zero", 16, "00")
    payee("_no_number", 16, "12x")
    payee("_empty", 26, "", options="")


def summary_fields():
    for field, value in {1: "12x", 2: "138x9", 3: "x02", 16: "1389030x9", 17: "123456x", 18: "1234x",
                         25: "123456789012345x"}.items():
        summary("", field, value)
    for field in range(4, 10):
        summary("", field, "123456789012345x")
    for field in range(10, 16):
        summary("", field, "12345678901234567x")
    summary("_empty", 1, "")
    summary("_empty", 6, "", options="")
    summary("_empty", 18, "", options="")
    summary("_two_digits", 19, "12")
    summary("_no_number", 19, "x")
    for field, value in {20: "123456789012345x", 21: "1389030x9", 22: "1x1", 23: "1" * 26, 24: "1234567890123x"}.items():
        summary("_cheque", field, value, CHEQUE)
        summary("_no_cheque", field, "1")
    summary("_cheque_empty", 20, "", CHEQUE, options="")
    summary("_cheque_empty", 23, "", CHEQUE, options="")


def whole_files():
    good = line(PAYER + [CONTROL])
    whole_wh("good", good, line(PAYEE), options="")
    whole_wh("good_only_errors", good, line(FOREIGNER))
    whole_wh("good_first_version", line(LEGAL), line(OTHER_INSURER), options="")
    whole_wh("payer_alone", good)
    whole_wh("blank_second_line", good, "", line(PAYEE))
    whole_wh("blank_third_line", good, line(PAYEE), "", "nonsense")
    whole_wh("first_two_lines", good, line(PAYEE), "nonsense", options="errors-only first-two")
    whole_wh("control_no_base64", line(PAYER + ["abc"]), last_end=False)
    whole_wh("control_of_other_version", line(PAYER + ["MS4w"]), last_end=False)
    whole_wh("control_and_comma", good + ",", last_end=False)
    whole_wh("payer_surplus", good + ",۱,x", last_end=False)
    whole_wh("payer_short", line(PAYER[:4]), last_end=False)
    whole_wh("payee_33_fields", line(PAYER), line(PAYEE[:33]))
    whole_wh("payee_3_fields", line(PAYER), line(PAYEE[:3]))
    whole_wh("payee_surplus", line(PAYER), line(PAYEE + ["", "پ"]))
    whole_wh("decimals_and_signs", line(PAYER), line(PAYEE, f17="1.5", f18="-3", f19="1E3", f20=" 5", f21="12a"))
    whole_wh("letters_in_numbers", line(PAYER), line(PAYEE, f17="۱۲", f18="ي1", f19="1٢", f20="&H1"))
    whole_wh("line_ends_alone", line(PAYER, f8="a\rb", f9="a\nb"), last_end=False)
    whole_wh("half_a_surrogate", line(PAYER, f8="a\ud800b"), last_end=False)
    whole_wh("nul", line(PAYER, f8="a\0b"), last_end=False)
    whole_wh("national_flag_stays", line(PAYER), line(FOREIGNER), line(PAYEE[:12]))
    write("wh_empty", b"")
    write("wh_mark_alone", b"\xff\xfe")
    write("wh_no_mark", utf16(line(PAYER), last_end=False)[2:], "errors-only")
    write("wh_odd_length", utf16(line(PAYER), last_end=False) + b"x", "errors-only")
    write("wh_utf8", (line(PAYER) + "\r\n").encode("utf-8"), "errors-only")
    write("wh_wrong_name", utf16(line(PAYER)), "", "WX138902.TXT")
    whole_wk("good", line(SUMMARY), options="")
    whole_wk("good_cheque", line(CHEQUE), options="")
    whole_wk("second_line_nonsense", line(SUMMARY), ",".join("x" * 25))
    whole_wk("second_line_long", line(SUMMARY), ",".join("x" * 26) + ",")
    whole_wk("surplus", line(SUMMARY) + ",,پ")
    whole_wk("short", line(SUMMARY[:18]))
    whole_wk("blank_first_line", "", line(SUMMARY))
    write("wk_empty", b"", "", "WK138902.TXT")
    write("wk_wrong_name", utf16(line(SUMMARY)), "", "KW138902.TXT")


if __name__ == "__main__":
    payer_fields()
    payee_fields()
    summary_fields()
    whole_files()
