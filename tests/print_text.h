// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Lets a failed comparison show its texts as texts.

#include <QString>
#include <QStringView>

#include <ostream>

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(QStringView text, std::ostream *out)
{
    PrintTo(text.toString(), out);
}

inline void PrintTo(QChar letter, std::ostream *out)
{
    *out << "U+" << std::hex << int(letter.unicode()) << std::dec;
}
