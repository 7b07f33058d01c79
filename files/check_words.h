// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The words in which the structure check speaks: of each error, and around the errors in report and boxes.

#include "files/line_check.h"

#include <QString>

namespace zrv {

/// What the two checks say differently.
struct CheckWords {
    QStringView nameLetters; ///< the first two of the last twelve letters of a path
    QStringView starting;
    QStringView noFile;
    QStringView wrongName;
    QStringView rightName;
    QStringView reading;
    QStringView lineOfFile; ///< behind the number of a line
    QStringView finishing;
    QStringView finishedBox; ///< first line of the box at the end
    QStringView fileNotFound;
};

[[nodiscard]] const CheckWords &checkWords(FileKind kind);

/// The error's words as the report has them behind the error's number, with a CR LF inside those of a wrong number of
/// fields. The version is that of the checking program.
[[nodiscard]] QString findingWords(const FileRules &rules, const Finding &finding, QStringView programVersion);

/// The same in one line for a list, without the second line of a wrong number of fields and the blanks at its ends;
/// control characters of the file are shown as U+FFFD, and of a long field only its beginning stands.
[[nodiscard]] QString findingLine(const FileRules &rules, const Finding &finding, QStringView programVersion);

/// Pieces of the report that both checks share.
namespace report_words {

inline constexpr QStringView StartTime = u"(تاريخ و زمان شروع عمليات کنترل : ";
inline constexpr QStringView EndTime = u"(تاريخ و زمان پايان عمليات کنترل : ";
inline constexpr QStringView TimeEnds = u")";
inline constexpr QStringView Error = u"  ÷÷÷÷÷>  خطاي شماره "; ///< before an error's number
inline constexpr QStringView ErrorOfFile = u" خطاي شماره ";    ///< likewise, of an error of the file itself
inline constexpr QStringView NumberEnds = u" : ";
inline constexpr QStringView Line = u" -- در حال کنترل خط شماره : ";
inline constexpr QStringView Counting = u" ++++ در حال کنترل تعداد فيلدهاي موجود در خط شماره : ";
inline constexpr QStringView CountingOfFile = u" از فايل ليست حقوق ... "; ///< in both checks
inline constexpr QStringView CountPassed = u"  =====>  تعداد فيلدهاي موجود در خط : ";
inline constexpr QStringView CountPassedEnds = u" صحيح است";
inline constexpr QStringView Field = u" ++++ در حال کنترل فيلد شماره : ";
inline constexpr QStringView Value = u" = «";
inline constexpr QStringView ValueEnds = u"» از رکورد شماره : ";
inline constexpr QStringView OfSalaryList = u" در فايل ليست حقوق...";
inline constexpr QStringView OfSummaryList = u" در فايل خلاصه ليست حقوق...";
inline constexpr QStringView SurplusOfRecord = u" از رکورد شماره : ";

} // namespace report_words

} // namespace zrv
