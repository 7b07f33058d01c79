// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/screens/field_stages.h"

#include "core/frmCoding.h"
#include "core/frmCodingCalls.h"
#include "core/frmEnterance_Door.h"
#include "core/frmUser_Defination.h"
#include "files/frmReadTextFiles.h"
#include "lists/frmHogog1.h"
#include "lists/frmKholList.h"
#include "lists/frmTransferData.h"
#include "parties/frmKarfarma.h"
#include "upkeep/frmMakeShobe.h"
#include "upkeep/frmUpgrades.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

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

} // namespace

const std::vector<Stage> &fieldStages()
{
    return Stages;
}

} // namespace zrv
