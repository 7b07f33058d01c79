// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/check_words.h"

#include "core/basic/ansi.h"
#include "core/basic/text.h"
#include "core/public/digit_codes.h"

#include <algorithm>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr CheckWords SalaryList = {
    .nameLetters = u"WH",
    .starting = u" - در حال کنترل نام فايل ليست حقوق ... ",
    .noFile = u" -- ابتدا فايل متني ليست حقوق را از مسير مورد نظر انتخاب نماييد",
    .wrongName =
        u" -- نام گذاري فايل ليست حقوق اشتباه است و يا آنرا صحيح انتخاب ننموده ايد،جهت اجراي عمليات کنترل ساختار فايل متني ، اصلاح نام آن ضروري ميباشد.قوانين نامگذاري فايل در دفترچه آمده است ",
    .rightName = u" -- فايل ليست حقوق صحيح نامگذاري شده است ",
    .reading = u" - در حال خواندن و کنترل ساختار فايل متني ليست حقوق ، لطفا منتظر بمانيد ...  ",
    .lineOfFile = u" از فايل ليست حقوق ... ",
    .finishing = u"  پايان عمليات کنترل ساختار فايل متني - ",
    .finishedBox = u"عمليات کنترل ساختار فايل متني ليست حقوق به پايان رسيد",
    .fileNotFound =
        u"فايل مورد نظر يافت نشد.از وجود فايل ليست حقوق در مسير انتخاب شده اطمينان حاصل نموده و سپس مجددا عمليات را اجرا نماييد",
};

constexpr CheckWords SummaryList = {
    .nameLetters = u"WK",
    .starting = u" - در حال کنترل نام فايل خلاصه ليست حقوق ... ",
    .noFile = u" -- ابتدا فايل متني خلاصه ليست حقوق را از مسير مورد نظر انتخاب نماييد",
    .wrongName =
        u" -- نام گذاري فايل خلاصه ليست حقوق اشتباه است و يا آنرا صحيح انتخاب ننموده ايد.قوانين نامگذاري فايل در دفترچه آمده است ",
    .rightName = u" -- فايل خلاصه ليست حقوق صحيح نامگذاري شده است ",
    .reading = u" - در حال خواندن و کنترل ساختار فايل متني خلاصه ليست حقوق ، لطفا منتظر بمانيد ...  ",
    .lineOfFile = u" از فايل خلاصه ليست حقوق ... ",
    .finishing = u"- پايان عمليات کنترل ساختار فايل متني خلاصه ليست حقوق",
    .finishedBox = u"عمليات کنترل ساختار فايل متني خلاصه ليست به پايان رسيد",
    .fileNotFound =
        u"فايل مورد نظر يافت نشد.از وجود فايل خلاصه ليست در مسير انتخاب شده اطمينان حاصل نموده و سپس مجددا عمليات را اجرا نماييد",
};

constexpr QStringView CountInFirstLine = u" ؟؟؟؟؟؟؟ در خط اول از فايل متني ليست حقوق بايد ";
constexpr QStringView CountInOtherLines = u" ؟؟؟؟؟؟؟ در خطوط دوم و به بعد از فايل متني ليست حقوق بايد ";
constexpr QStringView CountInSummaryList = u" ؟؟؟؟؟؟؟ در خط اول از فايل متني خلاصه ليست حقوق بايد ";
constexpr QStringView CountFound = u" فيلد وجود داشته باشد.در حاليکه اين خط در فايل متني انتخاب شده داراي : ";
constexpr QStringView CountEnds = u" فيلد ميباشد.براي اطلاعات بيشتر به دفترچه راهنما مراجعه نماييد";
constexpr QStringView OldVersion =
    u" فيلد ميباشد.براي اطلاعات بيشتر به دفترچه راهنما مراجعه نماييد(توجه:يکي از علل اين خطا ميتواند استفاده از نسخه هاي قديمي برنامه يعني نسخ قبل از : ";
constexpr QStringView VersionOfFile = u"باشد.نسخه فايل متني موجود ";
constexpr QStringView VersionEnds = u" ميباشد.";
constexpr QStringView MendCount =
    u"                                           ؟؟؟؟؟؟؟ لطفا پس از اصلاح فايل متني ، مجددا عمليات کنترل ساختار را جهت اطمينان از صحت ساختار فايل اصلاح شده اجرا نماييد ";

constexpr QStringView FirstCode = u"کد اسکي اولين کاراکتر نامعتبر : (";
constexpr QStringView FirstCodeEnds = u") ميباشد";
constexpr QStringView Missing = u" اين فيلد در فايل متني موجود نميباشد ";
constexpr QStringView ExtraComma =
    u" وجود کاماي (،) اضافي در ساختار اين خط از فايل.لطفا نسبت به حذف آن و رفع اشکال اقدام نماييد ";
constexpr QStringView Extra = u" اين فيلد با محتوي « ";
constexpr QStringView ExtraCodeInFirstLine = u"»  و کد اسکي کاراکتر اول : (";
constexpr QStringView ExtraCode = u"»  و کد اسکي : (";
constexpr QStringView ExtraEnds = u") در ساختار اين خط از فايل اضافي است.لطفا نسبت به حذف آن و رفع اشکال اقدام نماييد";
constexpr QStringView TooFew =
    u" فايل متني ليست حقوق حداقل بايد حاوي 2 رکورد باشد و ميان رکوردهاي آن هيچ خط خالي اي نبايد وجود داشته باشد.لطفا نسبت به رفع اشکال اقدام نماييد ";
constexpr QStringView Empty = u" فايل ليست حقوق خالي ميباشد و هيچ رکوردي در آن موجود نميباشد";

/// The words of a rule, with the code of the letter that breaks it where the rule is about letters.
QString ruleWords(const CheckRule &rule, QStringView value)
{
    switch (rule.asks) {
    case Asks::Digits:
    case Asks::DigitsAlways:
        return rule.message + FirstCode + FirstNonDigitCode(value) + FirstCodeEnds;
    case Asks::NoNumber:
    case Asks::NoNumberAlways:
        return rule.message + FirstCode + FirstDigitCode(value) + FirstCodeEnds;
    default:
        return rule.message.toString();
    }
}

QString countWords(const FileRules &rules, const Finding &finding, QStringView programVersion)
{
    const bool isFirst = finding.line == 1;
    const QStringView where = rules.kind == FileKind::Wk ? CountInSummaryList
                              : isFirst                  ? CountInFirstLine
                                                         : CountInOtherLines;
    const LineRules &line = isFirst ? rules.first : rules.rest;
    const QString counted = where + QString::number(line.fields.size()) + CountFound + QString::number(finding.counted);
    if (finding.kind == FindingKind::OtherVersion)
        return counted + OldVersion + programVersion + VersionOfFile + finding.version + VersionEnds + u"\r\n"_s
               + MendCount;
    return counted + CountEnds + u"\r\n"_s + MendCount;
}

QString extraWords(const FileRules &rules, const Finding &finding)
{
    const int code = ansiCode(finding.value.front());
    const bool isPayer = rules.kind == FileKind::Wh && finding.line == 1;
    return Extra + finding.value + (isPayer ? ExtraCodeInFirstLine : ExtraCode)
           + QString::number(code < 0 ? u'?' : code) + ExtraEnds;
}

/// As much of a text of the file as a list shows.
QString beginningOf(QStringView text)
{
    constexpr qsizetype MostShown = 200;
    return text.size() > MostShown ? text.first(MostShown) + u"…"_s : text.toString();
}

bool isControl(QChar letter)
{
    return letter < u' ' || (letter >= u'\x7f' && letter < u'\xa0') || letter == QChar::LineSeparator
           || letter == QChar::ParagraphSeparator || letter.isSurrogate();
}

} // namespace

const CheckWords &checkWords(FileKind kind)
{
    return kind == FileKind::Wh ? SalaryList : SummaryList;
}

QString findingWords(const FileRules &rules, const Finding &finding, QStringView programVersion)
{
    switch (finding.kind) {
    case FindingKind::Rule:
        return ruleWords(*finding.rule, finding.value);
    case FindingKind::FieldCount:
    case FindingKind::OtherVersion:
        return countWords(rules, finding, programVersion);
    case FindingKind::MissingField:
        return Missing.toString();
    case FindingKind::ExtraComma:
        return ExtraComma.toString();
    case FindingKind::ExtraField:
        return extraWords(rules, finding);
    case FindingKind::TooFewRecords:
        return TooFew.toString();
    case FindingKind::EmptyFile:
        return Empty.toString();
    case FindingKind::NoFile:
        return checkWords(rules.kind).noFile.toString();
    case FindingKind::WrongName:
        return checkWords(rules.kind).wrongName.toString();
    }
    return {};
}

QString findingLine(const FileRules &rules, const Finding &finding, QStringView programVersion)
{
    Finding shown = finding;
    const QString value = beginningOf(finding.value);
    const QString version = beginningOf(finding.version);
    // A rule looks for its letter in the whole field; only an extra field is shown itself.
    if (finding.kind == FindingKind::ExtraField)
        shown.value = value;
    shown.version = version;
    QString words = findingWords(rules, shown, programVersion);
    // The second line is the last one: the version that a file names may have line ends of its own.
    if (finding.kind == FindingKind::FieldCount || finding.kind == FindingKind::OtherVersion)
        words.truncate(words.lastIndexOf(u"\r\n"_s));
    words = Trim(words);
    std::ranges::replace_if(words, isControl, QChar(QChar::ReplacementCharacter));
    return words;
}

} // namespace zrv
