// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmMain.h"

#include "core/basic/val.h"
#include "core/keyboard_layout.h"
#include "core/mdlError.h"
#include "core/mdlPublic.h"
#include "core/store/recordset.h"
#include "core/store/store_error.h"

namespace zrv {

namespace {

const QString Refused = u" اخطار  "_s;
const QString UpgradeScreen = u"frmUpgradeDatabaseStructureAndUpdateUserRecords"_s;

/// The payer with the words of its three codes. It names the columns that came last, so that a store that is too
/// old for the program fails here with store_error::MissingColumn.
const QString PayerQuery =
    u"SELECT ZRVtbKarfarma.TFN as TFN,ZRVtbKarfarma.MMoadiType, ZRVtbCoding.SDesc AS MMoadiTypeDesc,"
    "ZRVtbKarfarma.SMoadiType,ZRVtbCoding_1.SDesc AS SMoadiTypeDesc,ZRVtbKarfarma.MohasebeType,"
    "ZRVtbCoding_2.SDesc AS MohasebeTypeDesc,ZRVtbKarfarma.Name, ZRVtbKarfarma.Family,ZRVtbKarfarma.CodeShobe, "
    "ZRVtbKarfarma.ShobeName, ZRVtbKarfarma.Tin,ZRVtbKarfarma.PostCode,ZRVtbKarfarma.CodeHozeh,TelNo,ZRVtbKarfarma."
    "Address,ZRVtbKarfarma.EdareName,ZRVtbKarfarma.MelliCode1,ZRVtbKarfarma.EmzaName1,ZRVtbKarfarma.EmzaFamily1,"
    "ZRVtbKarfarma.EmzaSemat1,ZRVtbKarfarma.MelliCode2,ZRVtbKarfarma.EmzaName2,ZRVtbKarfarma.EmzaFamily2,"
    "ZRVtbKarfarma.EmzaSemat2"
    " FROM ((ZRVtbKarfarma LEFT JOIN ZRVtbCoding ON ZRVtbKarfarma.MMoadiType = ZRVtbCoding.SCode and "
    "(ZRVtbCoding.MCode)= '5')  LEFT JOIN ZRVtbCoding AS ZRVtbCoding_1 ON ZRVtbKarfarma.SMoadiType = "
    "ZRVtbCoding_1.SCode  and (ZRVtbCoding_1.MCode)='6' ) left JOIN ZRVtbCoding AS ZRVtbCoding_2 ON "
    "ZRVtbKarfarma.MohasebeType = ZRVtbCoding_2.SCode and (ZRVtbCoding_2.MCode)='7'"_s;

qint16 typeNumber(const Value &code)
{
    return static_cast<qint16>(wholeVal(NullToZero(code)));
}

} // namespace

frmMain::frmMain(Program &program)
    : Screen(program, u"frmMain"_s)
{
    // Which screen each button and menu item opens.
    struct Opens {
        Control &control;
        QString screen;
    };
    for (const Opens &row : std::initializer_list<Opens>{
             {cmdKarfarma, u"frmKarfarma"_s},
             {cmdKarkonan, u"frmKarkonan"_s},
             {cmdHogog, u"frmHogog1"_s},
             {cmdKholList, u"frmKholList"_s},
             {cmdCreatTextFiles, u"frmCreatTextFiles"_s},
             {cmdReadTextFiles, u"frmReadTextFiles"_s},
             {cmdReports, u"frmTransferData"_s},
             {cmdUsres, u"frmUser_Defination"_s},
             {cmdCodin_Semat, u"frmCodingCalls"_s},
             {mnusubfrmKarfarma, u"frmKarfarma"_s},
             {mnusubfrmKarkonan, u"frmKarkonan"_s},
             {mnusubfrmHogog, u"frmHogog1"_s},
             {mnusubfrmKholList, u"frmKholList"_s},
             {mnusubfrmTransferData, u"frmTransferData"_s},
             {mnusubfrmCoding_Semat, u"frmCodingCalls"_s},
             {mnusubUpgrades, u"frmUpgrades"_s},
             {mnusubMakeShobe, u"frmMakeShobe"_s},
             {mnuAbout, u"frmAbout"_s},
             {mnusubVersionsFacilities, u"frmVersionsFacilities"_s},
         })
        row.control.onClick = [this, screen = row.screen] { openScreen(screen); };
    program.showPayer = [this](const QString &text) {
        panelPayer.setText(text);
        m_program.ShownPayer = text;
    };
    cmdSrcMoadi.onClick = [this] { cmdSrcMoadi_Click(); };
    mnusubUpgradeDatabaseStructure.onClick = [this] { mnusubUpgradeDatabaseStructure_Click(); };
    cmdExit.onClick = mnuExit.onClick = [this] { cmdExit_Click(); };
}

frmMain::~frmMain()
{
    m_program.showPayer = nullptr;
}

void frmMain::Form_Load()
{
    setCaption(u"ورود  به  سيستم  ماليات  بر حقوق "_s + m_program.ProgramVersion);
    SwitchToPersianKeyboard(m_platform);
}

void frmMain::Form_Activate()
{
    mnusubUpgradeDatabaseStructure.setCaption(u"بروزرساني ساختار بانک اطلاعاتي به "_s + m_program.ProgramVersion);
    try {
        testPayer();
    } catch (const RunTimeError &failure) {
        if (failure.number() == store_error::MissingColumn)
            storeIsTooOld();
        else
            ShowUnknownError(m_platform, failure);
    }
}

void frmMain::enablePayerControls(bool enabled)
{
    for (Control *control :
         std::initializer_list<Control *>{&cmdCodin_Semat, &cmdCreatTextFiles, &cmdHogog, &cmdKholList, &cmdKarkonan,
                                          &cmdSrcMoadi, &cmdUsres, &mnuAmaliat, &mnuBaseInformation})
        control->setEnabled(enabled);
}

void frmMain::testPayer()
{
    const Connection connection(m_program.StoreConnectionString);
    Recordset payer(connection, PayerQuery);
    if (payer.eof()) {
        enablePayerControls(false);
        messageBox(box::Notice, Refused,
                   u".کاربر گرامي جهت استفاده از برنامه  و فعال شدن تمامي قسمت هاي آن، تعريف پرداخت کننده حقوق "
                   "الزامي ميباشد.جهت تعريف پرداخت کننده حقوق لطفا دکمه (تعريف پرداخت کننده حقوق) را کليک نماييد"_s
                       + u"\r"_s
                       + u"توجه : درصورتيکه فقط جهت کنترل صحت ساختار و محتوي اطلاعات موجود در فايلهاي متني از سيستم "
                         "استفاده مينماييد ، نيازي به تعريف پرداخت کننده حقوق نميباشد.جهت کنترل ساختار و مشاهده "
                         "محتوي فايلهاي الکترونيکي که از بانک اطلاعاتي موجود در سيستم هاي مالي خود استخراج نموده "
                         "ايد،دکمه (کنترل و نمايش محتواي فايلهاي الکترونيکي) را کليک نماييد"_s);
        return;
    }
    if (payer.recordCount() > 1)
        messageBox(box::Refusal, Refused,
                   u" بيش از يک پرداخت کننده حقوق در جدول مربوطه تعريف گرديده است.لطفا با برنامه نويس تماس بگيريد "_s);
    enablePayerControls(true);
    const QDate today = m_platform.today();
    panelDate.setText(LongSolarDate(today, today));

    const Value branch = payer.value(u"ShobeName");
    const QString noBranch =
        u"کد شعبه و نام شعبه جزو اقلام الزامي در تعريف پرداخت کننده حقوق ميباشد.لطفا از منوي سوپروايزري جهت اضافه "
        "نمودن رکوردهاي اطلاعات پايه اقدام نماييد"_s;
    // Two tests on purpose: a branch name that is NULL is empty as well, and is told twice.
    if (branch.isNull())
        messageBox(box::Plain, QString(), noBranch);
    if (branch.toText().isEmpty())
        messageBox(box::Plain, QString(), noBranch);

    m_program.showPayer(payer.value(u"name").toText() + u" "_s + payer.value(u"Family").toText() + u" - شعبه "_s
                        + branch.toText());
    panelUser.setText(u"کاربر : "_s + m_program.UserFullName);
    panelOwner.setText(u"ديوان زروان "_s);

    m_program.PayerTFN = payer.value(u"TFN").toText();
    m_program.PayerCodeShobe = payer.value(u"CodeShobe").toText();
    m_program.PayerMMoadiType = typeNumber(payer.value(u"MMoadiType"));
    m_program.PayerSMoadiType = typeNumber(payer.value(u"SMoadiType"));
    m_program.PayerMohasebeType = typeNumber(payer.value(u"MohasebeType"));
    testFirstRun();
}

void frmMain::storeIsTooOld()
{
    enablePayerControls(false);
    cmdKarfarma.setEnabled(false);
    cmdReadTextFiles.setEnabled(false);
    messageBox(box::RefusalRtl, u"توجه"_s,
               u"نسخه اجرا شده برنامه با ديتابيس موجود سازگاري ندارد.لطفا نسبت به بروزرساني پايگاه اطلاعاتي از طريق "
               "فرمي که نمايش داده خواهد شد، اقدام نماييد"_s);
    openScreen(UpgradeScreen);
}

void frmMain::testFirstRun()
{
    const QString section = u"PrevSoftVersion"_s;
    const QString key = u"PrevSoftVersionKey"_s;
    m_program.PrevSoftVersion = m_platform.setting(section, key, u"1"_s);
    if (m_program.PrevSoftVersion == m_program.ProgramVersion)
        return;
    const Answer wantsToSee = messageBox(
        box::YesNo, QString(),
        u"کاربر محترم،با توجه به اينکه شما براي اولين بار نسخه جديد نرم افزار را اجرا مينماييد،به شما توصيه ميگردد "
        "جهت رويت امکانات جديد اظافه شده به برنامه و استفاده صحيح از انها،از منوي راهنماي موجود در فرم اصلي برنامه "
        "گزينه(فهرست تغييرات ايجاد شده در نسخ برنامه) را انتخاب نماييد.آيا مايل به نمايش اتوماتيک امکانات مذکور "
        "ميباشيد؟"_s);
    // Saved before the list opens: the activation that follows its closing must not ask again.
    m_platform.saveSetting(section, key, m_program.ProgramVersion);
    if (wantsToSee == Answer::Yes)
        openScreen(u"frmVersionsFacilities"_s);
}

void frmMain::cmdSrcMoadi_Click()
{
    m_program.SearchCallerName.clear();
    openScreen(u"frmSrcKarkonan"_s);
}

void frmMain::mnusubUpgradeDatabaseStructure_Click()
{
    const Answer answer = messageBox(
        box::AskYesNo | box::RightToLeft, u"اخطار!!!!!! "_s,
        u"اخطار!!!!!! : اجراي اين گزينه فقط براي آن دسته از کاربراني که از نسخه هاي قبل از : "_s
            + m_program.ProgramVersion
            + u"استفاده مينمايند ضروري بوده(اين دسته از کاربران نيز فقط يک بار نياز به اجرا دارند) و اجراي آن در "
              "اطلاعات ساير کاربران اخلال ايجاد مينمايد. "_s
            + u"\r\n"_s + u"آيا مايل به ادامه عمليات ميباشيد ؟"_s);
    if (answer == Answer::Yes)
        openScreen(UpgradeScreen);
}

void frmMain::Form_KeyPress(int &keyAscii)
{
    if (keyAscii == 27) {
        keyAscii = 0;
        cmdExit_Click();
    }
}

void frmMain::cmdExit_Click()
{
    SwitchToLatinKeyboard(m_platform);
    unload();
}

bool frmMain::Form_QueryUnload(UnloadMode mode)
{
    if (mode != UnloadMode::CloseBox && mode != UnloadMode::Code)
        return true;
    if (messageBox(box::YesNo, QString(), u"آيا ميخواهيد از سيستم خارج شويد؟    "_s) == Answer::Yes)
        throw ProgramEnd{};
    return false;
}

void frmMain::Form_Unload()
{
    // Leaving the main form always ends the program; nobody comes back to the login.
    throw ProgramEnd{};
}

} // namespace zrv
