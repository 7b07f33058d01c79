// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/file_contents.h"

#include "core/basic/run_time_error.h"
#include "core/basic/text.h"
#include "core/basic/val.h"
#include "core/mdlEncriptDecript.h"
#include "core/public/check_digit.h"
#include "core/store/recordset.h"
#include "files/contents_columns.h"
#include "files/wh_layout.h"
#include "files/wk_layout.h"

#include <array>
#include <utility>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr qsizetype MostLetters = 4096; ///< of a cell; no field of a file that keeps the rules has more than 150
constexpr qsizetype MostOfFirst = 64;   ///< of what headings name
constexpr int ControlField = 22;
constexpr int MonthList = 4;

// Fields of a payee's line.
constexpr int MelliCode = 1;
constexpr int MelliatCode = 12;
constexpr std::array PaidFields = {20, 26, 28};

/// The fields of a line as far as they are looked at; a line may have millions.
class LineFields {
public:
    explicit LineFields(QStringView line)
    {
        for (qsizetype end = line.indexOf(u','); end >= 0 && m_count < MostFields; end = line.indexOf(u',')) {
            m_fields[m_count++] = line.first(end);
            line = line.sliced(end + 1);
        }
        if (m_count < MostFields)
            m_fields[m_count++] = line;
    }

    /// By its number in the layout; empty where the line has ended before.
    [[nodiscard]] QStringView operator[](int number) const { return m_fields[static_cast<std::size_t>(number) - 1]; }
    [[nodiscard]] bool has(int number) const { return std::cmp_less_equal(number, m_count); }
    [[nodiscard]] QString text(int number, qsizetype most = MostLetters) const
    {
        const QStringView field = trimBlanks((*this)[number]);
        return field.size() <= most ? field.toString() : field.first(most) + u'…';
    }

private:
    static constexpr std::size_t MostFields = 34;
    std::array<QStringView, MostFields> m_fields;
    std::size_t m_count = 0;
};

std::unique_ptr<ScratchTable> makeTable(const ContentsTable &table)
{
    return std::make_unique<ScratchTable>(table.name.toString(), table.fieldNames());
}

/// The cells of the fields of a line: codes as what they mean, all others as they stand.
QStringList cellsOf(const LineFields &fields, const ContentsTable &table, std::span<const Field> layout,
                    const CodeWords &codes)
{
    QStringList cells;
    cells.reserve(static_cast<qsizetype>(table.columns.size()));
    for (int field = table.firstField; field < table.firstField + table.fieldCount(); ++field) {
        const int list = layout[static_cast<std::size_t>(field) - 1].list;
        cells += list > 0 ? codes.describe(list, fields.text(field)) : fields.text(field);
    }
    return cells;
}

class ContentsReader {
public:
    ContentsReader(FileKind kind, const CodeWords &codes)
        : m_isWh(kind == FileKind::Wh)
        , m_codes(codes)
    {
        if (m_isWh)
            contents.payer = makeTable(payerContents());
        contents.table = makeTable(m_isWh ? payeeContents() : summaryContents());
    }

    void addLine(const LineFields &fields, bool isFirst)
    {
        if (isFirst)
            takeFirst(fields);
        if (isFirst && m_isWh)
            return;
        ++contents.rows;
        contents.table->add(m_isWh ? payee(fields) : cellsOf(fields, summaryContents(), wkFields(), m_codes));
    }
    void finish()
    {
        if (contents.payer)
            contents.payer->finish();
        contents.table->finish();
    }

    FileContents contents;

private:
    void takeFirst(const LineFields &fields)
    {
        int number = 0;
        const auto next = [&] { return fields.text(++number, MostOfFirst); };
        contents.TFN = next();
        if (m_isWh)
            contents.CodeShobe = next();
        contents.TaxYear = next();
        contents.TaxMonth = next();
        contents.monthName = m_codes.describe(MonthList, contents.TaxMonth);
        if (!m_isWh)
            return;
        contents.version = fields.has(ControlField)
                               ? DecodeBase64(fields.text(ControlField))
                               : u" -  نسخه اول پايلوت يا ايجاد فايل متني توسط پرداخت کننده حقوق"_s;
        contents.payer->add(cellsOf(fields, payerContents(), whPayerFields(), m_codes));
    }

    QStringList payee(const LineFields &fields)
    {
        QStringList cells = cellsOf(fields, payeeContents(), whPayeeFields(), m_codes);
        cells.prepend(codeState(fields));
        double paid = 0;
        for (const int field : PaidFields)
            paid += Val(fields[field]);
        cells += numberText(paid);
        return cells;
    }

    QString codeState(const LineFields &fields)
    {
        if (Val(fields[MelliatCode]) != 1)
            return u"شماره گذرنامه"_s;
        if (isValidNationalCode(trimBlanks(fields[MelliCode])))
            return u"کد ملي معتبر"_s;
        ++contents.invalidCodes;
        return u"کد ملي نامعتبر"_s;
    }

    bool m_isWh;
    const CodeWords &m_codes;
};

} // namespace

CodeWords::CodeWords(const QString &connectionString)
{
    const Connection connection(connectionString);
    for (Recordset rows(connection, u"SELECT MCode,SCode,SDesc FROM ZRVtbCoding"_s); !rows.eof(); rows.moveNext()) {
        QHash<QString, QString> &list = m_lists[static_cast<int>(wholeVal(rows.value(0).toText()))];
        const QString code = rows.value(1).toText().toLower();
        if (!list.contains(code))
            list.insert(code, rows.value(2).toText());
    }
}

QString CodeWords::describe(int list, const QString &code) const
{
    if (code.isEmpty())
        return {};
    const auto words = m_lists.constFind(list);
    if (words == m_lists.constEnd())
        return u"کد نامعتبر"_s;
    return words->value(code.toLower(), u"کد نامعتبر"_s);
}

std::optional<FileContents> readContents(FileKind kind, const QString &path, const CodeWords &codes,
                                         const BetweenLines &goOn)
{
    LineReader file(path);
    if (file.isEmpty())
        throw RunTimeError(error::InputPastEnd, u"فايل خالي است:\n"_s + path);
    ContentsReader reader(kind, codes);
    QStringView line;
    for (qint64 lines = 0; file.next(line) && !line.isEmpty(); ++lines) {
        if (!goOn(lines, file.offset(), file.fileSize()))
            return {};
        reader.addLine(LineFields(line), lines == 0);
    }
    reader.finish();
    reader.contents.oddities = file.oddities();
    return std::move(reader.contents);
}

} // namespace zrv
