// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/old_rows.h"

#include "core/public/check_digit.h"
#include "tools/zrvstore/field_rules.h"
#include "tools/zrvstore/letters.h"
#include "tools/zrvstore/old_shape.h"
#include "tools/zrvstore/older_shapes.h"

#include <QHashFunctions>

#include <algorithm>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A file with so many is hopeless, and reading on would only take time.
constexpr qint64 MostFaults = 1'000;

class RowCheck {
public:
    RowCheck(const OldTable &table, bool asStored, TakeoverReport &report)
        : m_table(table)
        , m_asStored(asStored)
        , m_report(report)
    {
        for (const QString &name : keyOf(table.shape))
            m_key.push_back(std::size_t(table.placeOf(name)));
        m_keys.reserve(table.rows.size());
        m_rules.resize(table.shape.columns.size());
        for (const FieldRule &rule : fieldRules()) {
            const int place = table.shape.name == latin1(rule.table) ? table.placeOf(latin1(rule.column)) : -1;
            if (place >= 0)
                m_rules[std::size_t(place)] = &rule;
        }
    }

    void check(std::size_t number)
    {
        const OldRow row = m_table.values(m_table.rows[number]);
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (row[i] && checkText(row, i) && m_rules[i])
                checkForm(row, i);
        }
        checkKey(row);
        checkNationalCode(row);
        m_keys.push_back({qHash(keyText(row)), number});
    }

    /// Keys that stand twice. The hashes alone are kept, so that a large table needs little memory.
    void checkDoubles()
    {
        std::ranges::sort(m_keys);
        for (std::size_t i = 1; i < m_keys.size(); ++i) {
            if (m_keys[i - 1].first != m_keys[i].first)
                continue;
            const OldRow row = m_table.values(m_table.rows[m_keys[i].second]);
            if (keyText(row) == keyText(m_table.values(m_table.rows[m_keys[i - 1].second])))
                m_report.fault(finding::DuplicateKey, m_table.where(row, keyOf(m_table.shape).join(u" + "_s)),
                               u"stands more than once"_s);
        }
    }

private:
    static QString latin1(std::string_view name) { return QString::fromLatin1(name.data(), qsizetype(name.size())); }

    /// How a value is shown; a password isn't.
    [[nodiscard]] QString shownValue(const OldRow &row, std::size_t column) const
    {
        return m_table.shape.columns[column].name == u"Passwordd" ? u"it"_s : shown(row[column]->toStdString());
    }

    /// True for a text that can be a value of its column.
    bool checkText(const OldRow &row, std::size_t column)
    {
        const ColumnShape &shape = m_table.shape.columns[column];
        const QString &text = *row[column];
        const Letters letters = lettersOf(text);
        if (text.size() <= shape.width && letters == Letters::Sound)
            return true;
        const QString where = m_table.where(row, shape.name);
        const QString value = shownValue(row, column);
        if (text.size() > shape.width)
            m_report.fault(finding::TooLong, where, value + u" is longer than its column"_s);
        if (letters == Letters::Damaged)
            m_report.fault(finding::Letters, where, value + u" has signs in it that are no letters"_s);
        else if (letters == Letters::OldCodePage && !m_asStored)
            m_report.fault(finding::OldCodePage, where, value + u" is a text of an old code page"_s);
        else if (letters == Letters::OldCodePage)
            m_report.doubt(finding::OldCodePage, where, value + u" is a text of an old code page, kept as it stands"_s);
        else if (letters == Letters::Odd)
            m_report.doubt(finding::Letters, where, value + u" has letters that no screen takes"_s);
        return false;
    }

    /// A value that no screen writes may have been read wrong.
    void checkForm(const OldRow &row, std::size_t column)
    {
        const FieldRule &rule = *m_rules[column];
        const std::string value = row[column]->toStdString();
        if (isBlank(value)) {
            if (rule.isRequired)
                m_report.doubt(finding::Empty, m_table.where(row, m_table.shape.columns[column].name), u"is empty"_s);
            return;
        }
        const QString wrong = complaint(rule, value);
        if (!wrong.isEmpty())
            m_report.doubt(finding::Form, m_table.where(row, m_table.shape.columns[column].name),
                           shownValue(row, column) + u' ' + wrong);
    }

    void checkNationalCode(const OldRow &row)
    {
        const int nationality = m_table.placeOf(u"MelliatCode"_s);
        if (nationality < 0 || row[std::size_t(nationality)] != u"1")
            return;
        const auto code = std::size_t(m_table.placeOf(u"MelliCode"_s));
        if (row[code] && !isValidNationalCode(*row[code]))
            m_report.doubt(finding::Form, m_table.where(row, u"MelliCode"_s),
                           shownValue(row, code) + u" is no valid national code"_s);
    }

    void checkKey(const OldRow &row)
    {
        for (const std::size_t place : m_key) {
            const QString &column = m_table.shape.columns[place].name;
            // A column that came with an upgrade is NULL in older rows.
            if (!row[place] && !isAdded(m_table.shape.name, column))
                m_report.fault(finding::Empty, m_table.where(row, column), u"is NULL, and of the key"_s);
        }
    }

    [[nodiscard]] QString keyText(const OldRow &row) const
    {
        QString text;
        for (const std::size_t place : m_key)
            text += row[place].value_or(QString()).toCaseFolded() + u'\x1F';
        return text;
    }

    const OldTable &m_table;
    bool m_asStored;
    TakeoverReport &m_report;
    std::vector<std::size_t> m_key;
    std::vector<const FieldRule *> m_rules;                  ///< of each column; null where it may hold any text
    std::vector<std::pair<std::size_t, std::size_t>> m_keys; ///< hash and number of the row
};

} // namespace

void checkOldRows(const OldTable &table, bool asStored, TakeoverReport &report)
{
    RowCheck check(table, asStored, report);
    qint64 loose = 0;
    for (std::size_t number = 0; number < table.rows.size() && report.faults() < MostFaults; ++number) {
        check.check(number);
        loose += !jet::Row(table.rows[number].bytes, table.definition).isTight();
    }
    check.checkDoubles();
    if (loose > 0)
        report.doubt(finding::LooseRow, table.shape.name,
                     QString::number(loose) + u" rows hold bytes that belong to no column"_s);
}

} // namespace zrv::storetool
