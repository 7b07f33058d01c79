// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/verify_parties.h"

#include "core/public/check_digit.h"

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isNationalCode(std::string_view value)
{
    return isValidNationalCode(QString::fromUtf8(value.data(), qsizetype(value.size())));
}

/// A row with the columns' names in place of their numbers.
class NamedRow {
public:
    NamedRow(const TableReader &row, Findings &findings)
        : m_row(row)
        , m_findings(findings)
    {
    }

    std::string_view operator[](std::string_view column) const { return m_row.value(placeOf(m_row.shape(), column)); }
    /// A rule on a column that an older store lacks is no use.
    void require(bool holds, std::string_view column, const QString &otherwise) const
    {
        if (!holds && m_row.has(placeOf(m_row.shape(), column)))
            m_findings.add(finding::Form, m_row.where(column), shown((*this)[column]) + u' ' + otherwise);
    }
    void requireFilled(std::string_view column) const
    {
        if (isBlank((*this)[column]) && m_row.has(placeOf(m_row.shape(), column)))
            m_findings.add(finding::Empty, m_row.where(column), u"is empty"_s);
    }

private:
    const TableReader &m_row;
    Findings &m_findings;
};

void checkKind(const NamedRow &payer)
{
    const std::string_view tin = payer["Tin"];
    if (payer["MMoadiType"] == "1") {
        payer.require(isNationalCode(tin), "Tin", u"is no valid national code, which a natural person has"_s);
        payer.require(isBlank(payer["SMoadiType"]), "SMoadiType", u"is kept for a natural person, who has none"_s);
        payer.requireFilled("Name");
    } else if (payer["MMoadiType"] == "2") {
        const bool isEconomic = isDigits(tin) && tin.size() == 12 && (tin.front() == '4' || tin.front() == '5');
        payer.require(isEconomic, "Tin", u"is no economic number of 12 digits that begins with 4 or 5"_s);
        payer.require(isBlank(payer["Name"]), "Name", u"is kept for a legal person, which has none"_s);
        payer.requireFilled("SMoadiType");
    }
}

/// The second signatory stands whole or not at all.
void checkSignatory(const NamedRow &payer)
{
    if (payer["MelliCode2"].size() < 2)
        return;
    for (const std::string_view column : {"EmzaName2", "EmzaFamily2", "EmzaSemat2"})
        payer.requireFilled(column);
}

void checkPayee(const NamedRow &payee)
{
    if (payee["MelliatCode"] == "1") {
        payee.require(isNationalCode(payee["MelliCode"]), "MelliCode", u"is no valid national code"_s);
        payee.require(payee["KeshvarCode"] == "1", "KeshvarCode", u"is not the country of a national"_s);
    } else if (payee["MelliatCode"] == "2") {
        payee.require(payee["KeshvarCode"] != "1", "KeshvarCode", u"is not the country of a foreigner"_s);
    }
    if (payee["BimehType"] != "3") // 3 is uninsured
        payee.requireFilled("InsuNo");
}

} // namespace

void checkOrphan(const TableReader &row, std::string_view tfn, const Payers &payers, Findings &findings)
{
    if (!payers.contains(tfn))
        findings.add(finding::OrphanTfn, row.where("TFN"), u"no payer has this file number"_s);
}

Payers checkPayers(const Database &database, const FoundTable &table, const CodeLists &lists, Findings &findings)
{
    Payers payers;
    if (!table.isThere)
        return payers;
    const FieldCheck fields(table, lists);
    const std::size_t tfn = placeOf(*table.shape, "TFN");
    int count = 0;
    TableReader row(database, table);
    while (row.next()) {
        fields.check(row, findings);
        checkKind({row, findings});
        checkSignatory({row, findings});
        payers.emplace(row.value(tfn));
        ++count;
    }
    if (count > 1)
        findings.add(finding::PayerCount, table.shape->name, QString::number(count) + u" payers, a store is of one"_s);
    return payers;
}

void checkPayees(const Database &database, const FoundTable &table, const CodeLists &lists, const Payers &payers,
                 Findings &findings)
{
    if (!table.isThere)
        return;
    const FieldCheck fields(table, lists);
    const std::size_t tfn = placeOf(*table.shape, "TFN");
    TableReader row(database, table);
    while (row.next()) {
        fields.check(row, findings);
        checkPayee({row, findings});
        checkOrphan(row, row.value(tfn), payers, findings);
    }
}

void checkUsers(const Database &database, const FoundTable &table, const CodeLists &lists, Findings &findings)
{
    if (!table.isThere)
        return;
    const FieldCheck fields(table, lists);
    const std::size_t level = placeOf(*table.shape, "Access_Level");
    bool hasSupervisor = false;
    TableReader row(database, table);
    while (row.next()) {
        fields.check(row, findings);
        hasSupervisor = hasSupervisor || row.value(level) == "1";
        if (row.value(level) != "0" && row.value(level) != "1")
            findings.add(finding::Form, row.where("Access_Level"), shown(row.value(level)) + u" is neither 0 nor 1"_s);
    }
    if (!hasSupervisor)
        findings.add(finding::NoSupervisor, table.shape->name, u"no user is a supervisor"_s);
}

} // namespace zrv::storetool
