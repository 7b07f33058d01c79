// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/player.h"

#include "core/basic/run_time_error.h"
#include "tests/player/properties.h"

#include <QDir>

#include <utility>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

Player::Player(QString folder, Stage &stage, Transcript &transcript, std::function<void(Platform &)> program)
    : m_folder(std::move(folder))
    , m_stage(stage)
    , m_transcript(transcript)
    , m_program(std::move(program))
    , m_platform(m_folder, transcript)
{
    m_platform.runScreen = [this](Form &form) { m_stage.runModal(form, [&] { letUserAct(form); }); };
    m_stage.attach(m_platform);
    m_platform.boxShows = [this](const Box &box) { m_stage.boxShows(box); };
    m_platform.reportShows = [this](const Report &report) { m_stage.reportShows(report); };
    m_platform.yields = [this] { m_stage.yields(); };
}

Status Player::play(std::vector<Line> lines)
{
    m_lines = std::move(lines);
    m_next = 0;
    try {
        while (!atEnd())
            playNextLine();
    } catch (const SittingOver &) {
        return Status::Held;
    } catch (const LineFailed &) {
        return Status::Failed;
    } catch (const LineUnusable &) {
        return Status::Unusable;
    } catch (const std::exception &failure) {
        complain(u"the program broke off: "_s + QString::fromUtf8(failure.what()));
        return Status::Failed;
    }
    return Status::Held;
}

void Player::playNextLine()
{
    const Line &line = m_lines[m_next++];
    try {
        line.command->play(*this, line);
        m_stage.settle();
    } catch (const LineFailed &failure) {
        complain(failure.message);
        throw;
    } catch (const ScenarioError &error) {
        complain(QString::fromUtf8(error.what()));
        throw LineUnusable{};
    }
}

/// The line that is in hand when things go wrong is the one to name; the lines that opened the screens around it
/// see the same failure pass by.
void Player::complain(const QString &message)
{
    if (!m_complaint.isEmpty() || m_next == 0)
        return;
    const Line &line = m_lines[m_next - 1];
    m_complaint = line.place() + u": "_s + line.source + u"\n    "_s + QString(message).replace(u'\n', u"\n    "_s);
}

void Player::letUserAct(Form &form)
{
    // What the opening screen left on its way arrives before the user's first line.
    m_stage.settle();
    while (form.isOpen()) {
        if (atEnd())
            throw SittingOver{};
        playNextLine();
    }
}

void Player::startProgram()
{
    if (m_platform.topmost())
        failLine(u"the program is running: it can be started again when it has ended"_s);
    m_programEnded = false;
    try {
        m_program(m_platform);
    } catch (const ProgramEnd &) {
        // The screens have been unwound; the lines that follow look at what the program left behind.
    }
    m_programEnded = true;
    m_transcript.line(u"end"_s);
}

Form &Player::topmost()
{
    if (Form *const form = m_platform.topmost())
        return *form;
    failLine(m_programEnded ? u"no screen is open: the program has ended"_s : u"no screen is open"_s);
}

Control &Player::control(const QString &name)
{
    Form &form = topmost();
    if (Control *const control = form.find(name))
        return *control;
    failLine(form.name() + u" has no control "_s + name);
}

Control &Player::reachable(const QString &name)
{
    Control &wanted = control(name);
    for (const Control *at = &wanted; at; at = at->container().containerControl()) {
        const QString which = at == &wanted ? name : name + u" lies in "_s + at->name() + u", which"_s;
        if (!at->isVisible())
            failLine(which + u" is hidden"_s);
        if (!at->isEnabled())
            failLine(which + u" is disabled"_s);
    }
    return wanted;
}

QString Player::path(const QString &written) const
{
    return QDir(m_folder).absoluteFilePath(QString(written).replace(u'\\', u'/'));
}

void failLine(const QString &message)
{
    throw LineFailed{message};
}

void failExpectation(const QString &expected, const QString &seen)
{
    throw LineFailed{u"expected: "_s + expected + u"\nseen:     "_s + seen};
}

} // namespace zrv::player
