// SPDX-License-Identifier: GPL-3.0-or-later
// The screen as a whole, and the choice of the files.
#include "files/frmReadTextFiles.h"

#include "files/frmReadTextFiles_controls.h"

#include <QDir>

namespace zrv {

namespace {

const QString Refused = u" اخطار  "_s;
const QString NameOfDos =
    u"نام فايل متني انتخاب شده نشانگر تحت DOS بودن آن ميباشد"_s + u"\r\n"_s
    + u"اين برنامه فايل هاي متني تحت ويندوز را کنترل نموده و قادر به کنترل فايل هاي تحت داس(Dos) نميباشد"_s;

constexpr qsizetype NameLength = 12; ///< of WH138902.TXT
constexpr QChar ForDos = u'D';       ///< in place of the first letter of such a name

/// The second letter of a file's name tells which of the two it is.
QChar kindLetter(FileKind kind)
{
    return kind == FileKind::Wh ? u'H' : u'K';
}

/// What is said, behind its name, of a file of the other kind than the one asked for.
QString kindRefusal(FileKind asked)
{
    return asked == FileKind::Wh ? u") مربوط به خلاصه ليست ميباشد.لطفا فايل ليست حقوق را انتخاب نماييد"_s
                                 : u") مربوط به ليست حقوق ميباشد.لطفا فايل خلاصه ليست را انتخاب نماييد"_s;
}

/// The letter so many places before a name's end, in capitals; none of a shorter name.
QChar letterFromEnd(const QString &name, qsizetype place)
{
    return name.size() < place ? QChar() : name[name.size() - place].toUpper();
}

void showPath(Label &label, const QString &path)
{
    label.setCaption(path);
    label.setToolTip(path);
}

} // namespace

frmReadTextFiles::frmReadTextFiles(Program &program)
    : RecordScreen(program, u"frmReadTextFiles"_s)
{
    cmdShowHogogTextFilePath.onClick = [this] { cmdShowHogogTextFilePath_Click(); };
    cmdShowKholTextFilePath.onClick = [this] { cmdShowKholTextFilePath_Click(); };
    cmdCheckHogogStructure.onClick = [this] { cmdCheckHogogStructure_Click(); };
    cmdCheckKholStructure.onClick = [this] { cmdCheckKholStructure_Click(); };
    cmdHogogShow.onClick = [this] { cmdHogogShow_Click(); };
    cmdKholShow.onClick = [this] { cmdKholShow_Click(); };
    chkCreatHogogErrorLogFile.onClick = [this] { chkCreatHogogErrorLogFile_Click(); };
    cmdShowErrorLogFile.onClick = [this] { cmdShowErrorLogFile_Click(); };
    cmdPrint.onClick = [this] { cmdPrint_Click(); };
    cmdExit.onClick = [this] { unload(); };
    txtHogogStructure.onSearching = txtKholStructure.onSearching = [this] { m_platform.yield(); };
    txtHogogStructure.onLineDoubleClick = [this](qint64 line) { showPlace(FileKind::Wh, line); };
    txtKholStructure.onLineDoubleClick = [this](qint64 line) { showPlace(FileKind::Wk, line); };
    wireContents();
}

void frmReadTextFiles::Form_Load()
{
    setCaption(
        u"کنترل  و  نمايش  ساختار  و  محتوي  فايلهاي  الکترونيکي  آماده  شده  جهت  ارسال  به  اداره امور مالياتي"_s);
    showPath(LabelHogogPath, m_program.HogogPath);
    showPath(LabelKholPath, m_program.KholPath);
    LabelHogogTextErrorLogPath.setCaption(logPath());
    browse.reset();
    cmdPrint.setEnabled(false);
    cmdKholShow.setEnabled(true);
}

// The files ------------------------------------------------------------------------------------------------------

// clang-format off
frmReadTextFiles::FileControls frmReadTextFiles::controlsOf(FileKind kind)
{
    if (kind == FileKind::Wh)
        return {m_program.HogogPath, LabelHogogPath, cmdHogogShow, HogogPage, m_hogogShown, HogogStructurePage,
                txtHogogStructure, m_hogogReport, m_hogogChecked};
    return {m_program.KholPath, LabelKholPath, cmdKholShow, KholPage, m_kholShown, KholStructurePage,
            txtKholStructure, m_kholReport, m_kholChecked};
}
// clang-format on

void frmReadTextFiles::cmdShowHogogTextFilePath_Click()
{
    chooseFile(FileKind::Wh, FileKind::Wk);
}

void frmReadTextFiles::cmdShowKholTextFilePath_Click()
{
    chooseFile(FileKind::Wk, FileKind::Wh);
}

void frmReadTextFiles::chooseFile(FileKind asked, FileKind other)
{
    const std::optional<QString> chosen =
        m_platform.openFileDialog(QDir::toNativeSeparators(m_platform.programFolder() + u"/ERSAL"_s), QString());
    if (!chosen)
        return;
    const QString &name = *chosen;
    if (letterFromEnd(name, NameLength - 1) == kindLetter(other)) {
        messageBox(box::RefusalRtl, Refused, u"فايل متني انتخاب شده ("_s + name.right(NameLength) + kindRefusal(asked));
        return;
    }
    const FileControls controls = controlsOf(asked);
    controls.path = name;
    if (letterFromEnd(name, NameLength) == ForDos) {
        messageBox(box::RefusalRtl, Refused, NameOfDos);
        return;
    }
    showPath(controls.label, name);
    // Only a name in capitals tells where its sibling lies.
    const qsizetype place = name.size() - (NameLength - 1);
    if (name.size() < NameLength || name[place] != kindLetter(asked))
        return;
    QString sibling = name;
    sibling[place] = kindLetter(other);
    const FileControls siblings = controlsOf(other);
    siblings.path = sibling;
    showPath(siblings.label, sibling);
}

} // namespace zrv
