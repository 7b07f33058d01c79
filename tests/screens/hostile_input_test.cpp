// SPDX-License-Identifier: GPL-3.0-or-later
// Hostile texts, typed and pasted into every text field of every screen: nothing breaks, no statement is broken, and
// what reaches the store is what the field admits. A new screen joins with a line in Stages.
#include "core/basic/ansi.h"
#include "core/frmCoding.h"
#include "core/frmCodingCalls.h"
#include "core/frmEnterance_Door.h"
#include "core/frmUser_Defination.h"
#include "core/public/filter_key.h"
#include "core/store/new_store.h"
#include "core/store/recordset.h"
#include "core/store/schema.h"
#include "files/frmReadTextFiles.h"
#include "lists/frmHogog1.h"
#include "lists/frmKholList.h"
#include "lists/frmTransferData.h"
#include "parties/frmKarfarma.h"
#include "tests/print_text.h"
#include "tests/screens/hostile_texts.h"
#include "tests/screens/screen_stage.h"
#include "upkeep/frmMakeShobe.h"
#include "upkeep/frmUpgrades.h"

#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int TextsPerField = 1000;
constexpr int TextsPerAcceptance = 100; ///< of the texts, one in so many is also accepted with its button

template <class ScreenClass>
std::unique_ptr<Screen> make(Program &program)
{
    return std::make_unique<ScreenClass>(program);
}

std::unique_ptr<Screen> makeBanks(Program &program)
{
    return std::make_unique<frmCoding>(program, u"8"_s, u"ليست نام بانکها"_s);
}

const std::vector<Step> LegalPayer{
    {u"txtTFN", u"123456789012"},      {u"txtCodeShobe", u"2"},      {u"cmdKeyOk"},
    {u"dcbMMoadiType", u"2"},          {u"dcbSMoadiType", u"6"},     {u"dcbMohasebeType", u"1"},
    {u"txtFamily", u"شرکت"},           {u"txtShobeName", u"شعبه"},   {u"txtTin", u"412345678901"},
    {u"txtPostCode", u"1234567890"},   {u"txtTelNo", u"2188776655"}, {u"txtAddress", u"خيابان"},
    {u"txtMelliCode1", u"1234567891"}, {u"txtEmzaName1", u"علي"},    {u"txtEmzaFamily1", u"احمدي"},
    {u"txtEmzaSemat1", u"مدير"},
};

const std::vector<Step> NaturalPayer{
    {u"txtTFN", u"123456789012"},      {u"txtCodeShobe", u"2"},      {u"cmdKeyOk"},
    {u"dcbMMoadiType", u"1"},          {u"dcbMohasebeType", u"1"},   {u"txtName", u"علي"},
    {u"txtFamily", u"احمدي"},          {u"txtShobeName", u"شعبه"},   {u"txtTin", u"1234567891"},
    {u"txtPostCode", u"1234567890"},   {u"txtTelNo", u"2188776655"}, {u"txtAddress", u"خيابان"},
    {u"txtMelliCode1", u"1234567891"}, {u"txtEmzaName1", u"علي"},    {u"txtEmzaFamily1", u"احمدي"},
    {u"txtEmzaSemat1", u"مدير"},       {u"txtMelliCode2", u"12"},    {u"txtEmzaName2", u"رضا"},
    {u"txtEmzaFamily2", u"كريمي"},     {u"txtEmzaSemat2", u"معاون"},
};

const std::vector<Step> PayeesMonth{
    {u"txtTaxYear", u"1389"},
    {u"dcbTaxMonth", u"01"},
    {u"cmdKeyOk"},
    {u"dcbMelliCode", u"1234567891"},
    {u"cmdKeyOk1"},
    {u"txtNJariHogog", u"5000000"},
    {u"txtJariEzafeKar", u"200000"},
    {u"txtNJariMoafiate91", u"100000"},
    {u"dcbMaskanStatus", u"2"},
    {u"dcbOtomobilStatus", u"3"},
    {u"txtFinalDaramadeMashmol", u"1"},
    {u"txtJariTax", u"1"},
    {u"txtFinalTax", u"1"},
};
const char16_t *const Payee =
    u"INSERT INTO ZRVtbKarkonan (TFN,MelliCode,Name,Family,ShakhsMoafCode) VALUES ('1','1234567891','علي','احمدي','1')";
const std::vector<Step> SummaryByCheque{
    {u"dcbTaxMonth", u"01"},       {u"cmdKeyOk"},
    {u"txtJariJarimeDo", u"5"},    {u"dcbNahveyePardakht", u"2"},
    {u"txtRozname_Year", u"1389"}, {u"txtRozname_Month", u"02"},
    {u"txtRozname_Day", u"03"},    {u"txtChequeSeriNo", u"1"},
    {u"txtCheque_Year", u"1389"},  {u"txtCheque_Month", u"02"},
    {u"txtCheque_Day", u"03"},     {u"cmbBankName", u"3"},
    {u"txtShobeName", u"شعبه"},    {u"txtHesabNo", u"1"},
};
const char16_t *const SummaryPayer = u"INSERT INTO ZRVtbKarfarma (TFN,CodeShobe) VALUES ('1','1')";
const char16_t *const SummarySalary =
    u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth,NTotalDaramad,GTotalDaramad,PJariHogog,"
    "FinalDaramadeMashmol,FinalTax) VALUES ('1','1','1389','01','5','0','0','3','0')";
const char16_t *const SummaryRow =
    u"INSERT INTO ZRVtbKholList (TFN,KholListType,TaxYear,TaxMonth) VALUES ('1','1','1389','01')";

// clang-format off
const std::vector<Stage> Stages{
    {"Login",         make<frmEnterance_Door>, {{u"txtUsernamee", u"A"}, {u"txtPasswordd", u"B"}}, u"cmdKeyOk"},
    {"CodeChooser",   make<frmCodingCalls>,    {}, u"cmdOk"},
    {"CodeKey",       makeBanks,               {}, u"cmdKeyOk"},
    {"CodeNew",       makeBanks,               {{u"txtSCode", u"77"}, {u"cmdKeyOk"}, {u"txtSDesc", u"نو"}}, u"cmdDataOk", true},
    {"CodeFound",     makeBanks,               {{u"txtSCode", u"3"}, {u"cmdKeyOk"}}, u"cmdDataOk", true},
    {"CodeSearch",    makeBanks,               {{u"OptSearch"}, {u"dbgBrowser", u"1"}}, u"cmdSearch"},
    {"UserKey",       make<frmUser_Defination>, {{u"txtUserNamee", u"A"}, {u"txtPasswordd", u"B"}}, u"cmdKeyOk"},
    {"UserNew",       make<frmUser_Defination>, {{u"txtUserNamee", u"A"}, {u"txtPasswordd", u"B"}, {u"cmdKeyOk"}, {u"txtName", u"نام"}, {u"txtFamily", u"فاميل"}}, u"cmdDataOk", true},
    {"UserFound",     make<frmUser_Defination>, {{u"txtUserNamee", u"ADMIN"}, {u"txtPasswordd", u"ADMIN"}, {u"cmdKeyOk"}}, u"cmdDataOk", true},
    {"UserPassword",  make<frmUser_Defination>, {{u"txtUserNamee", u"ADMIN"}, {u"txtPasswordd", u"ADMIN"}, {u"cmdKeyOk"}, {u"cmdChangePassword"}, {u"txtOldPassword", u"ADMIN"}, {u"txtNewPassword", u"a"}, {u"txtConfirmNewPassword", u"a"}}, u"cmdSavePassword", true, {{u"Passwordd", u"txtNewPassword"}}},
    {"UserSearch",    make<frmUser_Defination>, {{u"OptSearch"}, {u"dbgBrowser", u"3"}}, u"cmdSearch"},
    {"PayerKey",      make<frmKarfarma>,       {{u"txtTFN", u"123456789012"}, {u"txtCodeShobe", u"2"}}, u"cmdKeyOk"},
    {"PayerLegal",    make<frmKarfarma>,       LegalPayer, u"cmdDataOk", true},
    {"PayerNatural",  make<frmKarfarma>,       NaturalPayer, u"cmdDataOk", true},
    {"PayerSearch",   make<frmKarfarma>,       {{u"chkAutoSearch"}, {u"OptSearch"}, {u"dbgLetter_Topic", u"3"}}, u"cmdSearch"},
    {"SalaryKey",     make<frmHogog1>,         {{u"dcbTaxMonth", u"01"}}, u"cmdKeyOk"},
    {"SalaryPayee",   make<frmHogog1>,         {{u"dcbTaxMonth", u"01"}, {u"cmdKeyOk"}}, u"cmdKeyOk1", false, {}, {Payee}},
    {"SalaryData",    make<frmHogog1>,         PayeesMonth, u"cmdDataOk", true, {}, {Payee}},
    {"SalarySearch",  make<frmHogog1>,         {{u"OptSearch"}, {u"dbgLetter_Topic", u"5"}}, u"cmdSearch"},
    {"SummaryKey",    make<frmKholList>,       {{u"dcbTaxMonth", u"01"}}, u"cmdKeyOk", false, {}, {SummaryPayer, SummarySalary}},
    {"SummaryNew",    make<frmKholList>,       SummaryByCheque, u"cmdDataOk", true, {}, {SummaryPayer, SummarySalary}},
    {"SummaryFound",  make<frmKholList>,       SummaryByCheque, u"cmdDataOk", true, {}, {SummaryPayer, SummarySalary, SummaryRow}},
    {"SummarySearch", make<frmKholList>,       {{u"OptSearch"}, {u"dbgLetter_Topic", u"3"}}, u"cmdSearch", false, {}, {SummaryPayer}},
    {"FilesSearch",   make<frmReadTextFiles>,  {{u"SSTab1", u"1"}, {u"OptSearch"}, {u"dbgHogog", u"3"}}, u"cmdSearch"},
    {"Transfer",      make<frmTransferData>,   {{u"dcbSourceYear", u"1389"}, {u"dcbSourceMonth", u"12"}, {u"txtDestinationYear", u"1390"}, {u"dcbDestinationMonth", u"01"}}, u"cmdDisplayInformation", false, {}, {u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth) VALUES ('','1','1389','12')"}},
    {"Branches",      make<frmMakeShobe>,      {}, u"cmdExit"},
    {"RepairOfKey",   make<frmUpgrades>,       {{u"optUpgrades(2)"}}, u"cmdUpgrades"},
    {"RepairOfCode",  make<frmUpgrades>,       {{u"optUpgrades(3)"}}, u"cmdUpgrades"},
};
// clang-format on

struct Row {
    QString table;
    QStringList columns;
    QStringList values;

    friend bool operator==(const Row &, const Row &) = default;
};

/// True if a field that bears this tag may hold the letter.
bool admits(const QString &tag, QChar letter)
{
    const int code = ansiCode(letter);
    return code >= ' ' && FilterKey(tag, code) == code;
}

/// What a user has entered of a text: of a number all but the separators, which the screen puts in by itself.
QString entered(const QString &text, const QString &tag)
{
    return tag.contains(u"+DigitOnly"_s) ? QString(text).remove(u',') : text;
}

/// True for letters that got in with a row of the field's list, which typing completes to.
bool isOfItsList(const Edit &field, QChar letter)
{
    const auto *const combo = dynamic_cast<const Combo *>(&field);
    return combo && std::any_of(combo->items().begin(), combo->items().end(), [letter](const ListItem &item) {
               return item.shown.contains(letter);
           });
}

class HostileInput : public testing::TestWithParam<Stage> {
protected:
    HostileInput()
    {
        createStore(path());
        m_program.StoreConnectionString = u"Provider = Microsoft.Jet.OLEDB.4.0;Data Source = "_s + m_folder.path()
                                          + u"\\DBZorvan.mdb;Persist Security Info=False"_s;
        for (const char16_t *statement : GetParam().statements)
            Connection(m_program.StoreConnectionString).execute(QString::fromUtf16(statement));
        m_pristine = bytes();
        m_rows = rows();
        const std::unique_ptr<Screen> asMade = GetParam().make(m_program);
        for (const Control *control : asMade->controls())
            m_tags[control->name()] = control->tag();
    }

    QString path() const { return m_folder.filePath(u"DBZorvan.mdb"_s); }

    QByteArray bytes() const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    void restoreStore() const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(file.write(m_pristine), m_pristine.size());
    }

    /// The fields that a user can type in at the stage.
    QStringList fieldNames()
    {
        const std::unique_ptr<Screen> screen = openAt(GetParam(), m_program);
        QStringList names;
        for (const Edit *field : openFields(*screen))
            names += field->name();
        return names;
    }

    std::vector<Row> rows() const
    {
        std::vector<Row> all;
        const Connection connection(m_program.StoreConnectionString);
        for (const TableShape &table : storeSchema())
            for (Recordset set(connection, u"SELECT * FROM "_s + table.name); !set.eof(); set.moveNext()) {
                Row row{table.name, {}, {}};
                for (int column = 0; column < set.columnCount(); ++column) {
                    row.columns += set.columnName(column);
                    row.values += set.value(column).toText();
                }
                all.push_back(std::move(row));
            }
        return all;
    }

    static void expectAdmitted(const Edit &field, const QString &tag, const QString &tried)
    {
        if (field.maxLength() > 0) {
            ASSERT_LE(entered(field.text(), tag).size(), field.maxLength()) << tried.toStdString();
        }
        if (tag.isEmpty())
            return;
        for (const QChar letter : entered(field.text(), tag))
            ASSERT_TRUE(admits(tag, letter) || isOfItsList(field, letter))
                << field.name().toStdString() << " holds U+" << std::hex << int(letter.unicode());
    }

    /// Types a text, or pastes it, into a field as a user does.
    static void enter(Screen &screen, Edit &field, const QString &text, bool paste)
    {
        ASSERT_TRUE(screen.userFocus(field));
        field.selectAll();
        if (paste) {
            screen.userPaste(text);
            return;
        }
        for (const QChar letter : text)
            if (field.hasFocus())
                screen.userLetter(letter);
    }

    /// The row that accepting wrote, if any: one at most, each value short enough and of letters that its field
    /// admits.
    int expectOneAdmittedRow(const Screen &screen) const
    {
        int written = 0;
        for (const Row &row : rows()) {
            if (std::find(m_rows.begin(), m_rows.end(), row) != m_rows.end())
                continue;
            ++written;
            for (qsizetype column = 0; column < row.columns.size(); ++column)
                expectStored(screen, row.columns[column], row.values[column]);
        }
        EXPECT_LE(written, 1);
        EXPECT_LE(rows().size(), m_rows.size() + 1);
        EXPECT_GE(rows().size(), m_rows.size());
        return written;
    }

    void expectStored(const Screen &screen, const QString &column, const QString &value) const
    {
        QString name = u"txt"_s + column;
        for (const Stage::StoredIn &other : GetParam().storedIn)
            if (QString::fromUtf16(other.column) == column)
                name = QString::fromUtf16(other.field);
        if (const auto *const field = dynamic_cast<const TextBox *>(screen.find(name))) {
            const QString taken = entered(value, m_tags.value(name));
            if (field->maxLength() > 0) {
                EXPECT_LE(taken.size(), field->maxLength()) << column.toStdString();
            }
            for (const QChar letter : taken)
                EXPECT_TRUE(admits(m_tags.value(name), letter))
                    << column.toStdString() << " was stored with U+" << std::hex << int(letter.unicode());
        }
        if (const auto *const list = dynamic_cast<const Combo *>(screen.find(QString(u"dcb"_s + column)))) {
            const bool known = std::any_of(list->items().begin(), list->items().end(),
                                           [&value](const ListItem &item) { return item.code == value; });
            EXPECT_TRUE(value.isEmpty() || known) << column.toStdString() << ' ' << value.toStdString();
        }
    }

    const QTemporaryDir m_folder;
    BoxKeeper m_platform{m_folder.path()};
    Program m_program{m_platform};
    QByteArray m_pristine;
    std::vector<Row> m_rows;
    QMap<QString, QString> m_tags; ///< as the screen comes up with them; its rules change some on the way
};

TEST_P(HostileInput, FieldsHoldWhatTheyAdmitAndTheStoreStays)
{
    const QStringList names = fieldNames();
    ASSERT_FALSE(names.isEmpty());
    std::mt19937::result_type seed = 1;
    for (const QString &name : names) {
        SCOPED_TRACE(name.toStdString());
        // Afresh for each field: a text in one may close another.
        const std::unique_ptr<Screen> screen = openAt(GetParam(), m_program);
        Edit &field = *dynamic_cast<Edit *>(screen->find(name));
        for (const QString &text : hostileTexts(TextsPerField, seed++))
            for (const bool paste : {false, true}) {
                enter(*screen, field, text, paste);
                expectAdmitted(field, field.tag(), text);
                if (HasFatalFailure())
                    return;
            }
    }
    EXPECT_EQ(bytes(), m_pristine);
    EXPECT_EQ(m_platform.failures(), QStringList());
    EXPECT_EQ(m_platform.opened(), QStringList());
}

TEST_P(HostileInput, AcceptedTextsAreStoredAsAdmittedOrNotAtAll)
{
    const Stage &stage = GetParam();
    int written = 0;
    std::mt19937::result_type seed = 1001;
    for (const QString &name : fieldNames()) {
        SCOPED_TRACE(name.toStdString());
        for (const QString &text : hostileTexts(TextsPerField / TextsPerAcceptance, seed++)) {
            restoreStore();
            const std::unique_ptr<Screen> screen = openAt(stage, m_program);
            enter(*screen, *dynamic_cast<Edit *>(screen->find(name)), text, true);
            if (HasFatalFailure())
                return;
            if (Control *const accept = screen->find(stage.accept); accept->isReachable())
                screen->userClick(*accept);
            written += expectOneAdmittedRow(*screen);
        }
    }
    EXPECT_EQ(written > 0, stage.writes) << written;
    EXPECT_EQ(m_platform.failures(), QStringList());
    EXPECT_EQ(m_platform.opened(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Screens, HostileInput, testing::ValuesIn(Stages),
                         [](const auto &stage) { return std::string(stage.param.name); });

} // namespace
} // namespace zrv
