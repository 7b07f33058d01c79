// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/structure_check.h"

#include "core/basic/run_time_error.h"
#include "core/platform/platform.h"
#include "files/check_words.h"
#include "files/split_walk.h"

#include <utility>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr qsizetype NameLength = 12;
constexpr qsizetype KindLength = 2;

constexpr int ClosingStyle = box::RightToLeft | box::RightAligned | box::Information; // 0x180040

// The box of a run that failed has words of its own for these errors; those of FileNotFound differ between the checks.
constexpr QStringView NoAccess = u"فايل مورد نظر يافت نشد";
constexpr QStringView NoPath =
    u"علت يافت نشدن فايل ميتواند استفاده از نامهاي فارسي جهت نامگذاري فولدر حاوي فايل هاي ليست حقوق و خلاصه ليست باشد";

bool hasNameOf(FileKind kind, QStringView path)
{
    return path.size() >= NameLength
           && path.last(NameLength).first(KindLength).compare(checkWords(kind).nameLetters, Qt::CaseInsensitive) == 0;
}

ClosingBox failureBox(FileKind kind, const CheckOutcome &outcome)
{
    const QString failure = QString::number(outcome.failure) + u" < "_s + outcome.description + u" > "_s;
    switch (outcome.failure) {
    case error::FileNotFound:
        return {box::Plain, {}, checkWords(kind).fileNotFound + u'\r' + failure};
    case error::PathFileAccess:
        return {box::Plain, {}, NoAccess + u'\r' + failure};
    case error::PathNotFound:
        return {box::Plain, {}, NoPath + u'\r' + failure};
    default:
        return {box::Plain, {}, failure};
    }
}

} // namespace

StructureCheck::StructureCheck(const FileRules &rules, QString path, CheckOptions options)
    : m_rules(rules)
    , m_path(std::move(path))
    , m_options(std::move(options))
{
}

CheckOutcome StructureCheck::run(CheckEvents &events, const BeforeLine &beforeLine)
{
    events.started();
    if (m_path.isEmpty())
        return refuse(FindingKind::NoFile, events);
    if (!hasNameOf(m_rules.kind, m_path))
        return refuse(FindingKind::WrongName, events);
    events.nameAccepted();
    return guarded([&] {
        m_reader = std::make_unique<LineReader>(m_path, m_options.blockUnits);
        return m_reader->isEmpty() ? reportEmpty(events) : walk({.offset = m_reader->position()}, events, beforeLine);
    });
}

void StructureCheck::expectUnchanged() const
{
    if (m_reader && m_reader->hasChanged())
        throw RunTimeError(error::DeviceIo,
                           u"فايل پس از کنترل تغيير کرده است. لطفا دوباره آن را کنترل نماييد:\n"_s + m_path);
}

CheckOutcome StructureCheck::runFrom(const CheckPlace &place, CheckEvents &events, const BeforeLine &beforeLine)
{
    expectUnchanged();
    return guarded([&] { return walk(place, events, beforeLine); });
}

/// Turns what ends a run early into its outcome.
CheckOutcome StructureCheck::guarded(const std::function<CheckOutcome()> &walking) const
{
    CheckOutcome outcome;
    try {
        outcome = walking();
    } catch (const RunTimeError &failure) {
        outcome.end = CheckEnd::Failed;
        outcome.failure = failure.number();
        outcome.description = failure.description();
    }
    if (m_reader)
        outcome.oddities = m_reader->oddities();
    outcome.showsReport = outcome.end == CheckEnd::Finished || m_rules.kind == FileKind::Wk;
    return outcome;
}

CheckOutcome StructureCheck::refuse(FindingKind kind, CheckEvents &events)
{
    events.finding({.kind = kind});
    return {.end = CheckEnd::Refused, .errors = 1};
}

CheckOutcome StructureCheck::reportEmpty(CheckEvents &events)
{
    events.finding({.kind = FindingKind::EmptyFile});
    return {.end = CheckEnd::Empty, .errors = 1};
}

CheckOutcome StructureCheck::walk(const CheckPlace &from, CheckEvents &events, const BeforeLine &beforeLine)
{
    CheckState state = from.state;
    m_reader->seek(from.offset);
    const bool isSplit =
        m_options.threads > 1 && m_rules.kind == FileKind::Wh && events.wantsErrorsAlone() && !m_options.firstTwoLines;
    const WalkResult result = isSplit ? SplitWalk(m_rules, m_options, *m_reader, events, beforeLine).walk(state)
                                      : LineWalk(m_rules, m_options, *m_reader, events).walk(state, beforeLine);
    switch (result.end) {
    case WalkEnd::Cancelled:
        return {.end = CheckEnd::Cancelled, .records = state.records, .errors = state.errors};
    case WalkEnd::Mismatch: {
        const LineRules &line = state.records == 0 ? m_rules.first : m_rules.rest;
        const QString place = QString::number(result.field) + line.fields[static_cast<size_t>(result.field - 1)].label
                              + u" از خط شماره "_s + QString::number(state.records + 1);
        return {.end = CheckEnd::Failed,
                .records = state.records,
                .errors = state.errors,
                .failure = error::TypeMismatch,
                .description = u"محتوي فيلد شماره "_s + place + u" با عدد مقايسه ميشود ولي عدد نيست"_s,
                .line = state.records + 1,
                .field = result.field};
    }
    default:
        events.finished();
        return {.records = state.records, .errors = state.errors};
    }
}

std::optional<FileKind> fileKindOf(QStringView path)
{
    for (const FileKind kind : {FileKind::Wh, FileKind::Wk}) {
        if (hasNameOf(kind, path))
            return kind;
    }
    return {};
}

std::optional<ClosingBox> closingBox(FileKind kind, const CheckOutcome &outcome)
{
    if (outcome.end == CheckEnd::Failed)
        return failureBox(kind, outcome);
    if (outcome.end != CheckEnd::Finished)
        return {};
    const QString finished = checkWords(kind).finishedBox + u'\r';
    if (outcome.errors == 0)
        return ClosingBox{ClosingStyle,
                          {},
                          finished
                              + u"ساختار فايل متني صحيح ميباشد.با بستن اين فرم جزئيات بيشتر نمايش داده خواهد شد"_s};
    return ClosingBox{
        ClosingStyle, u"خطا"_s,
        finished + u"در ساختار فايل متني ايجاد شده تعداد : "_s + QString::number(outcome.errors)
            + u"  خطا وجود دارد.اصلاح اين خطاها قبل از تسليم فايلهاي متني به اداره امور مالياتي الزامي ميباشد\r"_s
            + u"جهت اطلاع از جزئيات اين خطا(ها)، اين فرم را ببنديد و گزارش ارائه شده را مطالعه نماييد\r"_s
            + u"جهت سهولت و خوانايي متن ، کليه خطاها با علامت  ÷÷÷÷÷>  مشخص گرديده اند "_s};
}

QString progressText(qint64 records)
{
    return u"در حال خواندن و کنترل صحت اطلاعات فايل متني ، لطفا منتظر بمانيد ...  "_s + u"( تعداد = "_s
           + QString::number(records) + u")"_s;
}

} // namespace zrv
