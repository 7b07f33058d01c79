// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/record_screen.h"

#include "core/basic/run_time_error.h"
#include "core/containers.h"
#include "core/mdlPublic.h"
#include "core/store/connection.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int EnterCode = 13;
constexpr int EscapeCode = 27;

} // namespace

const QString RecordScreen::RequiredMissing = u"  مقداردهي مواردي که با رنگ زمينه متمايز گرديده اند الزامي ميباشد "_s;

RecordScreen::RecordScreen(Program &program, QString name, QString keyContainer, QString dataContainer)
    : Screen(program, std::move(name))
    , m_keyContainer(std::move(keyContainer))
    , m_dataContainer(std::move(dataContainer))
{
}

void RecordScreen::Form_KeyPress(int &keyAscii)
{
    if (activeControl())
        keyAscii = FilterKey(activeControl()->tag(), keyAscii);
    if (keyAscii == EnterCode) {
        keyAscii = 0;
        moveFocus(1);
    } else if (keyAscii == EscapeCode && goBack()) {
        keyAscii = 0;
    }
}

bool RecordScreen::goBack()
{
    // A panel is open while its own button can be used.
    struct Step {
        QStringView openWhile;
        QStringView runs;
    };
    for (const Step &step : {Step{u"cmdSearch", u"cmdCancel_Search"}, Step{u"cmdDataOk", u"cmdDataReturn"},
                             Step{u"cmdKeyOk", u"cmdKeyReturn"}}) {
        const Control *const open = find(step.openWhile);
        Control *const button = find(step.runs);
        if (!open || !open->isReachable() || !button || !button->onClick)
            continue;
        button->onClick();
        return true;
    }
    return false;
}

bool RecordScreen::requiredAreFilled(QStringView container)
{
    return requiredAreFilled(std::initializer_list<QStringView>{container});
}

bool RecordScreen::requiredAreFilled(std::initializer_list<QStringView> containers, const QString &refusal)
{
    RequiredFields fields;
    for (const QStringView container : containers) {
        Control *const empty = CheckRequired(container, *this).firstEmpty;
        if (empty && (!fields.firstEmpty || empty->tabIndex() < fields.firstEmpty->tabIndex()))
            fields.firstEmpty = empty;
    }
    if (fields.allFilled())
        return true;
    messageBox(box::Refusal, u" اخطار  "_s, refusal);
    fields.firstEmpty->setFocus();
    return false;
}

void RecordScreen::openDataStage()
{
    DisableContainer(m_keyContainer, *this);
    EnableContainer(m_dataContainer, *this);
}

void RecordScreen::openKeyStage(bool clearKey)
{
    ClearContainer(m_dataContainer, *this);
    DisableContainer(m_dataContainer, *this);
    if (clearKey)
        ClearContainer(m_keyContainer, *this);
    EnableContainer(m_keyContainer, *this);
}

void RecordScreen::leaveKeyStage(Button &cmdContinue)
{
    ClearContainer(m_keyContainer, *this);
    DisableContainer(m_keyContainer, *this);
    ApplyModeButtons(u"picButtons", *this);
    DisableContainer(u"framBrows", *this);
    cmdContinue.setEnabled(true);
    cmdContinue.setFocus();
}

void RecordScreen::takeUpKeyStage(Button &cmdContinue, Control &keyField)
{
    EnableContainer(m_keyContainer, *this);
    EnableContainer(u"framBrows", *this);
    keyField.setFocus();
    cmdContinue.setEnabled(false);
}

Edit &RecordScreen::fieldOf(QStringView column) const
{
    for (const QString &name : {QString(u"txt" + column), QString(u"dcb" + column)})
        if (auto *const field = dynamic_cast<Edit *>(find(name)))
            return *field;
    throw RunTimeError(error::SubscriptOutOfRange, column.toString());
}

QString RecordScreen::valueOf(QStringView column) const
{
    const Edit &field = fieldOf(column);
    const auto *const list = dynamic_cast<const Combo *>(&field);
    return quoted((list ? list->boundText() : field.text()).trimmed());
}

void RecordScreen::showValue(QStringView column, const QString &stored)
{
    Edit &field = fieldOf(column);
    if (auto *const list = dynamic_cast<Combo *>(&field))
        list->setBoundText(stored);
    else
        field.setText(stored);
}

void RecordScreen::recordIsShown()
{
    for (Control *control : controls()) {
        auto *const field = dynamic_cast<Edit *>(control);
        if (field && field->backColor() == color::RequiredEmpty && !field->text().trimmed().isEmpty())
            field->setBackColor(color::DataField);
    }
}

bool RecordScreen::confirmDelete()
{
    return messageBox(box::AskYesNo, u"                       حذف "_s, u"  آيا  مطمئن  هستيد ؟"_s) == Answer::Yes;
}

} // namespace zrv
