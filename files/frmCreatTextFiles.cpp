// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/frmCreatTextFiles.h"

#include "core/code_combos.h"
#include "core/containers.h"
#include "core/mdlPublic.h"
#include "core/store/recordset.h"
#include "files/file_writer.h"

#include <array>

namespace zrv {

namespace {

constexpr int PayeesPerProgress = 20;
constexpr qint64 DrawEveryMs = 50;
const QString MonthList = u"4"_s;
const QString WaitingText = u"در حال ايجاد فايل ، لطفا منتظر بمانيد ...  "_s;
const QString LineEnd = u"\r\n"_s;

/// The code lists that a payee's row is joined with, and the payee's column that holds the code. The join is the
/// test of completeness: a payee whose code stands in no list drops out. The aliases from the fourth on give no
/// column, and the last does again what the second does.
struct CodeJoin {
    QStringView column;
    QStringView alias;
    QStringView list;
};

constexpr std::array<CodeJoin, 8> CodeJoins = {{
    {u"ZRVtbKarkonan.Semat", u"ZRVtbCoding", u"2"},
    {u"ZRVtbKarkonan.KeshvarCode", u"ZRVtbCoding_1", u"12"},
    {u"ZRVtbKarkonan.BimehType", u"ZRVtbCoding_2", u"16"},
    {u"ZRVtbKarkonan.Madrak", u"ZRVtbCoding_3", u"1"},
    {u"ZRVtbKarkonan.Rasteh", u"ZRVtbCoding_4", u"10"},
    {u"ZRVtbKarkonan.ShakhsMoafCode", u"ZRVtbCoding_5", u"13"},
    {u"ZRVtbKarkonan.EstekhdamType", u"ZRVtbCoding_6", u"15"},
    {u"ZRVtbKarkonan.KeshvarCode", u"ZRVtbCoding_7", u"12"},
}};

// clang-format off
QString payeesStatement(const QString &whereMonth)
{
    QString statement =
        u"SELECT ZRVtbHogog.MelliCode AS MelliCode,Name,Family,FatherName,EstekhdamType,PostCode,ZRVtbCoding.SDesc AS Semat,Sabege,Madrak,Rasteh,ShakhsMoafCode,MelliatCode,ZRVtbCoding_1.SDesc AS KeshvarName,BimehType,ZRVtbCoding_2.SDesc AS BimehName,InsuNo,"
        "NJariHogog,NJariMoafiate91,JariEzafeKar,NJariSayerPardakhtiha,NTotalDaramad,NDaramadeMashmol,GJariHogog,MaskanMablagh,OtomobilMablagh,GTotalDaramad,GDaramadeMashmol,"
        "PJariHogog,PDaramadeMashmol,NGPTotalDaramadeMashmol,SayereMoafiatha,FinalDaramadeMashmol,JariTax,FinalTax"
        " FROM ZRVtbHogog,ZRVtbKarkonan,ZRVtbCoding,ZRVtbCoding as ZRVtbCoding_1,ZRVtbCoding as ZRVtbCoding_2,ZRVtbCoding as ZRVtbCoding_3,ZRVtbCoding as ZRVtbCoding_4,ZRVtbCoding as ZRVtbCoding_5,ZRVtbCoding as ZRVtbCoding_6,ZRVtbCoding as ZRVtbCoding_7"_s + whereMonth;
    for (const CodeJoin &join : CodeJoins)
        statement += u" AND "_s + join.column + u" = "_s + join.alias + u".SCode"_s
                     + u" AND "_s + join.alias + u".MCode = "_s + quoted(join.list);
    return statement;
}
// clang-format on

} // namespace

frmCreatTextFiles::frmCreatTextFiles(Program &program)
    : RecordScreen(program, u"frmCreatTextFiles"_s)
{
    txtTaxYear.onGotFocus = [this] { txtTaxYear_GotFocus(); };
    txtTaxYear.onLostFocus = [this] { txtTaxYear_LostFocus(); };
    dcbTaxMonth.onClick = dcbTaxMonth.onLostFocus = [this] { dcbTaxMonth_Chosen(); };
    cmdCreatTextFiles.onClick = [this] { cmdCreatTextFiles_Click(); };
    cmdShowFiles.onClick = [this] { cmdShowFiles_Click(); };
    cmdTextFilesConfig.onClick = [this] { cmdTextFilesConfig_Click(); };
    cmdExit.onClick = [this] { unload(); };
}

void frmCreatTextFiles::Form_Load()
{
    setCaption(cmdCreatTextFiles.caption());
    EnableContainer(u"framKey", *this);
    txtTaxYear.setText(currentYear());
    FillCodeList(m_program, MonthList, dcbTaxMonth);
}

// The month and its paths ------------------------------------------------------------------------------------

QString frmCreatTextFiles::currentYear() const
{
    return SolarDate(m_platform.today()).left(4);
}

void frmCreatTextFiles::txtTaxYear_GotFocus()
{
    if (txtTaxYear.text().isEmpty())
        txtTaxYear.setText(currentYear());
}

void frmCreatTextFiles::txtTaxYear_LostFocus()
{
    const QString year = FullYear(txtTaxYear.text());
    txtTaxYear.setText(year.isEmpty() ? currentYear() : year);
    if (!dcbTaxMonth.boundText().isEmpty())
        showPaths();
}

void frmCreatTextFiles::dcbTaxMonth_Chosen()
{
    showPaths();
    LabelHogogRecordsCount.setCaption(u"0"_s);
}

MonthFiles frmCreatTextFiles::monthFiles() const
{
    return {m_platform.programFolder(), txtTaxYear.text(), dcbTaxMonth.boundText()};
}

void frmCreatTextFiles::showPaths()
{
    const MonthFiles files = monthFiles();
    LabelHogogPath.setCaption(files.wh);
    LabelHogogPath.setToolTip(files.wh);
    LabelKholPath.setCaption(files.wk);
    LabelKholPath.setToolTip(files.wk);
}

// The run ----------------------------------------------------------------------------------------------------

void frmCreatTextFiles::cmdCreatTextFiles_Click()
{
    struct PanelGoesWithTheRun {
        Picture &panel;
        ~PanelGoesWithTheRun() { panel.setVisible(false); }
    } const guard{PPICWaitingMessage};

    if (!requiredAreFilled(u"framKey"))
        return;
    LabelHogogRecordsCount.setCaption(u"0"_s);
    createKholFile();
    if (m_kholListFound)
        createHogogFile();
}

void frmCreatTextFiles::createKholFile()
{
    const Connection connection(m_program.StoreConnectionString);
    Recordset rows(connection, u"SELECT * FROM ZRVtbKholList"_s + u" WHERE "_s + u" TFN = "_s
                                   + quoted(m_program.PayerTFN) + u" AND TaxYear = "_s + quoted(txtTaxYear.text())
                                   + u" AND TaxMonth = "_s + quoted(dcbTaxMonth.boundText()));
    m_kholListFound = !rows.eof();
    if (!m_kholListFound) {
        refuse(u"  براي اين ماه از سال انتخاب شده ، خلاصه ليست حقوق ايجاد نشده است "_s);
        return;
    }
    const MonthFiles files = monthFiles();
    files.ensureFolders();
    writeWkFile(files.wk, rows);
    m_successText = u"  فايل متني خلاصه ليست با موفقيت ايجاد گرديد "_s;
}

/// The condition that both statements on the month's payees have in common.
QString frmCreatTextFiles::ofTheMonth() const
{
    return u" WHERE "_s + u" ZRVtbHogog.TFN = "_s + quoted(m_program.PayerTFN) + u" AND ZRVtbHogog.TaxYear = "_s
           + quoted(txtTaxYear.text()) + u" AND ZRVtbHogog.TaxMonth = "_s + quoted(dcbTaxMonth.boundText())
           + u" AND ZRVtbHogog.MelliCode = ZRVtbKarkonan.MelliCode"_s;
}

void frmCreatTextFiles::createHogogFile()
{
    LabelHogogRecordsCount.setCaption(u"0"_s);
    showWaitingMessage();

    const Connection connection(m_program.StoreConnectionString);
    const Recordset payer(connection, u"SELECT * FROM ZRVtbKarfarma"_s);
    if (!onePayer(payer.recordCount()))
        return;
    const int listed = Recordset(connection, u"SELECT * FROM ZRVtbHogog,ZRVtbKarkonan"_s + ofTheMonth()).recordCount();
    Recordset payees(connection, payeesStatement(ofTheMonth()));
    if (listed == 0 || payees.eof()) {
        refuse(u" اطلاعات مربوط به ليست حقوق "_s + dcbTaxMonth.text()
               + u" ماه سال مورد نظر ايجاد نشده است . ابتدا نسبت به ورود اطلاعات مذکور اقدام نماييد"_s);
        return;
    }

    const MonthFiles files = monthFiles();
    files.ensureFolders();
    const WhHeading heading{txtTaxYear.text(), dcbTaxMonth.boundText(), m_program.ProgramVersion};
    // The complete payees are counted as they are written, which spares a second walk through the month; the file
    // is given up when their number isn't that of the list.
    const int written =
        writeWhFile(files.wh, heading, payer, payees, listed, [this](int count) { payeeWritten(count); });
    if (written != listed) {
        refuseIncomplete(listed, written);
        return;
    }
    showProgress(written);
    drawNow();

    LabelHogogRecordsCount.setCaption(QString::number(written));
    hideWaitingMessage();
    m_successText += LineEnd + u"فايل متني ليست حقوق با موفقيت ايجاد گرديد"_s + LineEnd
                     + u" تعداد حقوق بگيران منتقل شده به فايل ليست حقوق ماه انتخاب شده : "_s + QString::number(written);
    messageBox(box::Notice, u" اطلاع  "_s, m_successText);
}

// Refusals ---------------------------------------------------------------------------------------------------

void frmCreatTextFiles::refuse(const QString &text, int style)
{
    hideWaitingMessage();
    messageBox(style, u" اخطار  "_s, text);
}

bool frmCreatTextFiles::onePayer(int payers)
{
    if (payers == 0)
        refuse(
            u" پيش نياز ارسال اطلاعات تعريف پرداخت کننده حقوق ميباشد . نسبت به تعريف پرداخت کننده حقوق اقدام نماييد"_s);
    else if (payers > 1)
        refuse(u" تعريف بيش از يک پرداخت کننده حقوق مجاز نميباشد "_s);
    return payers == 1;
}

void frmCreatTextFiles::refuseIncomplete(int listed, int complete)
{
    LabelWaitingMessage.setCaption(WaitingText);
    // clang-format off
    refuse(u"کاربر گرامي،شما احتمالا اقدام به Import مستقيم اطلاعات به بانک اطلاعاتي Access برنامه جهت توليد فايلهاي متني نموده ايد."_s + LineEnd
           + u"در صورت استفاده از اين روش براي ايجاد فايلهاي متني مقدار دهي کليه فيلد هاي الزامي جدول دريافت کنندگان حقوق از قبيل : کد نوع استخدام،کد سمت يا شغل،کد رسته شغلي،کد مدرک تحصيلي،کد مليت،کد نوع معافيت مازاد بر ماده 84 و کد نوع بيمه و ساير فيلدهاي الزامي قيد شده در دفترچه راهنماي تهيه فايل الکترونيکي اجتناب ناپذير ميباشد.با در نظر گرفتن محتواي فعلي بانک اطلاعاتي شما تعداد اطلاعات قابل انتقال از بانک اطلاعاتي به فايل متني به شرح ذيل ميباشد: "_s + LineEnd
           + u" تعداد کارکنان ليست حقوق ماه و سال انتخاب شده برابر با:("_s + QString::number(listed)
           + u") و تعداد کارکناني که اطلاعات آنها حائز شرايط لازم جهت ايحاد فايل متني ميباشد برابر با:("_s + QString::number(complete)
           + u")ميباشد"_s + LineEnd
           + u"جهت ارسال اطلاعات کليه کارکنان موجود در ليست حقوق به فايل متني اقدام لازم جهت تکميل کليه فيلدهاي الزامي کارکنان در فرم تعريف کارکنان را معمول فرماييد"_s + LineEnd
           + u"جهت اطلاع از معتبر بودن کدهاي ملي پرداخت کنندگان حقوق،از دکمه (کنترل و نمايش محتوي فايلهاي الکترونيکي) واقع در فرم اصلي برنامه استفاده نماييد"_s,
           box::RefusalRtl);
    // clang-format on
}

// What is shown during a run ---------------------------------------------------------------------------------

void frmCreatTextFiles::showWaitingMessage()
{
    LabelWaitingMessage.setCaption(WaitingText);
    PPICWaitingMessage.setVisible(true);
    drawNow();
}

void frmCreatTextFiles::showProgress(int payees)
{
    LabelWaitingMessage.setCaption(WaitingText + u"( تعداد = "_s + QString::number(payees) + u")"_s);
}

void frmCreatTextFiles::payeeWritten(int payees)
{
    if (payees % PayeesPerProgress != 0)
        return;
    showProgress(payees);
    // Drawing costs more than twenty lines: the first count is drawn, then what has come up to when it is time again.
    if (payees == PayeesPerProgress || m_sinceDrawn.elapsed() >= DrawEveryMs)
        drawNow();
}

void frmCreatTextFiles::drawNow()
{
    m_platform.yield();
    m_sinceDrawn.start();
}

// The files --------------------------------------------------------------------------------------------------

void frmCreatTextFiles::cmdShowFiles_Click()
{
    // The dialogue is the list of the two files: what is chosen in it doesn't matter.
    messageBox(
        box::Information | box::RightAligned | box::RightToLeft, u" اطلاع  "_s,
        u" کاربر محترم،با بستن اين پنجره 2 عدد فايل بر روي صفحه نمايش نمايان ميگردد.لطفا فايلهاي مذکور را بر روي CD رايت و به همراه دو برگ نسخه چاپي خلاصه ليست حقوق به اداره امور مالياتي مربوطه تحويل فرماييد.  "_s);
    (void)m_platform.openFileDialog(monthFiles().folder, QString());
}

void frmCreatTextFiles::cmdTextFilesConfig_Click()
{
    m_program.HogogPath = LabelHogogPath.caption();
    m_program.KholPath = LabelKholPath.caption();
    openScreen(u"frmReadTextFiles"_s);
}

} // namespace zrv
