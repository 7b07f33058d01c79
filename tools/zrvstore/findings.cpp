// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/findings.h"

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

Findings::Findings(Sink sink, int mostOfAKind)
    : m_sink(std::move(sink))
    , m_mostOfAKind(mostOfAKind)
{
}

void Findings::add(QStringView kind, const QString &where, const QString &what)
{
    write(kind, where, what, false);
}

void Findings::note(QStringView kind, const QString &where, const QString &what)
{
    write(kind, where, what, true);
}

void Findings::write(QStringView kind, const QString &where, const QString &what, bool isNote)
{
    // Notes and findings of one kind are counted apart.
    Count &count = m_counts[isNote ? QString(u"note "_s + kind) : kind.toString()];
    count.isNote = isNote;
    if (++count.seen <= m_mostOfAKind || m_mostOfAKind == 0)
        m_sink((isNote ? u"note "_s : QString()) + where + u": "_s + what + u" ["_s + kind + u']');
}

qint64 Findings::finish()
{
    qint64 findings = 0;
    for (const auto &[kind, count] : m_counts) {
        if (m_mostOfAKind > 0 && count.seen > m_mostOfAKind)
            m_sink(u"and "_s + QString::number(count.seen - m_mostOfAKind) + u" more ["_s + kind + u']');
        findings += count.isNote ? 0 : count.seen;
    }
    return findings;
}

QString shown(std::string_view utf8)
{
    constexpr qsizetype Most = 40;
    QString text = QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
    if (text.size() > Most)
        text = text.left(Most) + u'…';
    for (QChar &letter : text) {
        if (!letter.isPrint())
            letter = u'?';
    }
    return u'"' + text + u'"';
}

} // namespace zrv::storetool
