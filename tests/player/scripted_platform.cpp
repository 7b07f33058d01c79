// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/scripted_platform.h"

#include "core/forms/form.h"
#include "core/platform/tool_process.h"
#include "tests/player/word.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>

#include <utility>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

namespace {

QString answerText(Answer answer)
{
    switch (answer) {
    case Answer::Yes:
        return u"yes"_s;
    case Answer::No:
        return u"no"_s;
    case Answer::Ok:
        break;
    }
    return u"ok"_s;
}

} // namespace

QString styleText(int style)
{
    return style >= 0x10000 ? u"0x"_s + QString::number(style, 16) : QString::number(style);
}

Preview::Preview(const Report &shown)
    : Report(shown.name(), shown.title(), shown.paper())
{
    for (int number = 0; number < shown.pageCount(); ++number)
        m_pages.push_back(shown.page(number));
}

ScriptedPlatform::ScriptedPlatform(QString folder, Transcript &transcript)
    : m_folder(std::move(folder))
    , m_transcript(transcript)
{
}

Answer ScriptedPlatform::messageBox(int style, const QString &title, const QString &text)
{
    Box shown{style, title, text, Answer::Ok};
    if ((style & 0xF) == box::YesNo) {
        if (answers.empty())
            throw LineFailed{u"no answer is ready for the question "_s + quotedWord(title) + u' ' + quotedWord(text)};
        shown.answer = answers.front();
        answers.pop_front();
    }
    boxShows(shown);
    boxes.push_back(shown);
    m_transcript.line(u"box "_s + styleText(style) + u' ' + quotedWord(title) + u' ' + quotedWord(text) + u" -> "_s
                      + answerText(shown.answer));
    return shown.answer;
}

ToolEnd ScriptedPlatform::runTool(const QString &tool, const QStringList &words)
{
    return runToolIn(QCoreApplication::applicationDirPath(), tool, words);
}

void ScriptedPlatform::runModal(Form &form)
{
    // Taken off again however the screen ends: closed by the user, or left because the program or the sitting ends.
    struct OnTop {
        ScriptedPlatform &platform;
        OnTop(ScriptedPlatform &p, Form &f)
            : platform(p)
        {
            platform.m_screens.push_back(&f);
        }
        ~OnTop() { platform.m_screens.pop_back(); }
    };
    m_transcript.line(u"open "_s + form.name());
    {
        const OnTop onTop(*this, form);
        runScreen(form);
    }
    m_transcript.line(u"close "_s + form.name());
}

std::optional<QString> ScriptedPlatform::openFileDialog(const QString &folder, const QString &filter)
{
    Q_UNUSED(filter);
    if (files.empty())
        throw LineFailed{u"no file is ready for the file dialogue in "_s + quotedWord(folder)};
    std::optional<QString> chosen = files.front();
    files.pop_front();
    m_transcript.line(u"file-dialog "_s + quotedWord(folder) + u" -> "_s + quotedWord(chosen.value_or(QString())));
    return chosen;
}

void ScriptedPlatform::viewFile(const QString &path)
{
    m_transcript.line(u"view "_s + path);
}

void ScriptedPlatform::preview(const Report &report)
{
    auto kept = std::make_shared<const Preview>(report);
    m_transcript.line(u"print "_s + kept->name() + u' ' + QString::number(kept->pageCount()));
    previews.push_back(std::move(kept));
    reportShows(report);
}

QString ScriptedPlatform::programFile()
{
    // A sitting's folder need not hold the program: the player stands in for it.
    const QString program = m_folder + u"/ZRVClient"_s;
    return QFile::exists(program) ? program : QCoreApplication::applicationFilePath();
}

QString ScriptedPlatform::desktopFolder()
{
    // A desktop is there before any program; nobody has to make it.
    QString folder = m_folder + u"/Desktop"_s;
    QDir().mkpath(folder);
    return folder;
}

QString ScriptedPlatform::setting(const QString &section, const QString &key, const QString &fallback)
{
    const QSettings settings(m_folder + u"/settings.ini"_s, QSettings::IniFormat);
    return settings.value(section + u'/' + key, fallback).toString();
}

void ScriptedPlatform::saveSetting(const QString &section, const QString &key, const QString &value)
{
    QSettings settings(m_folder + u"/settings.ini"_s, QSettings::IniFormat);
    settings.setValue(section + u'/' + key, value);
}

} // namespace zrv::player
