// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/keyboard.h"

#include <QKeyEvent>
#include <QString>

#include <array>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

std::optional<Key> namedKey(const QKeyEvent &event)
{
    struct Row {
        Qt::Key theirs;
        Key ours;
    };
    static constexpr Row rows[] = {
        {Qt::Key_Return, Key::Enter},  {Qt::Key_Enter, Key::Enter},     {Qt::Key_Escape, Key::Escape},
        {Qt::Key_Tab, Key::Tab},       {Qt::Key_Backtab, Key::Backtab}, {Qt::Key_Backspace, Key::Backspace},
        {Qt::Key_Delete, Key::Delete}, {Qt::Key_Left, Key::Left},       {Qt::Key_Right, Key::Right},
        {Qt::Key_Up, Key::Up},         {Qt::Key_Down, Key::Down},       {Qt::Key_Home, Key::Home},
        {Qt::Key_End, Key::End},       {Qt::Key_PageUp, Key::PageUp},   {Qt::Key_PageDown, Key::PageDown},
    };
    const int key = event.key();
    if (key == Qt::Key_Tab && event.modifiers() & Qt::ShiftModifier)
        return Key::Backtab;
    if (event.matches(QKeySequence::Find))
        return Key::Find;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return static_cast<Key>(static_cast<int>(Key::F1) + key - Qt::Key_F1);
    for (const Row &row : rows)
        if (key == row.theirs)
            return row.ours;
    return std::nullopt;
}

namespace {

bool isOfArabicScript(QChar letter)
{
    return letter.script() == QChar::Script_Arabic;
}

/// The letter of a US keyboard's key, by the number that X11 and Wayland give its place; null for other keys.
QChar latinOfPlace(quint32 place)
{
    struct Row {
        quint32 first;
        QStringView letters;
    };
    static constexpr Row rows[] = {{24, u"qwertyuiop"}, {38, u"asdfghjkl"}, {52, u"zxcvbnm"}};
    for (const Row &row : rows)
        if (place >= row.first && place < row.first + static_cast<quint32>(row.letters.size()))
            return row.letters[static_cast<qsizetype>(place - row.first)];
    return {};
}

} // namespace

QString typedLetters(const QKeyEvent &event, bool intoCodes)
{
    const QString text = event.text();
    const Qt::KeyboardModifiers command =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    // Windows tells AltGr as Ctrl with Alt.
    const bool altGr = command == (Qt::ControlModifier | Qt::AltModifier);
    if (text.isEmpty() || text.front() < u' ' || text.front() == u'\u007F' || (command && !altGr))
        return {};
    if (intoCodes && isOfArabicScript(text.front()) && text.front().isLetter()) {
        const QChar latin = latinOfPlace(event.nativeScanCode());
        if (!latin.isNull())
            return event.modifiers() & Qt::ShiftModifier ? latin.toUpper() : QString(latin);
    }
    return text;
}

} // namespace zrv
