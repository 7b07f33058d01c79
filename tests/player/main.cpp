// SPDX-License-Identifier: GPL-3.0-or-later
// zrvplay: plays a scenario, one sitting at the program, and looks at what is seen.
#include "app/catalogue.h"
#include "tests/player/player.h"
#include "tests/player/scenario.h"
#ifdef ZRV_WITH_WIDGETS
#include "tests/player/widget_app.h"
#endif

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Options {
    QString folder;
    QString transcript; ///< empty: standard output
    QString scenario;
    bool widgets = false;
    bool help = false;
};

void print(FILE *to, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), to);
    std::fflush(to);
}

[[noreturn]] void refuse(const QString &why)
{
    throw ScenarioError(u"zrvplay: "_s + why);
}

Options readOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption widgets(u"widgets"_s);
    const QCommandLineOption folder(u"folder"_s, {}, u"DIR"_s);
    const QCommandLineOption transcript(u"transcript"_s, {}, u"FILE"_s);
    const QCommandLineOption help(QStringList{u"h"_s, u"help"_s});
    parser.addOptions({widgets, folder, transcript, help});
    if (!parser.parse(arguments))
        refuse(parser.errorText() + u" (--help tells the options)"_s);
    Options options{parser.value(folder), parser.value(transcript), {}, parser.isSet(widgets), parser.isSet(help)};
    if (options.help)
        return options;
    if (parser.positionalArguments().size() != 1)
        refuse(u"one scenario is wanted (--help tells the options)"_s);
    options.scenario = parser.positionalArguments().front();
    if (options.folder.isEmpty())
        refuse(u"--folder DIR is missing: the program's folder for this sitting"_s);
    const QFileInfo asked(options.folder);
    if (!asked.isDir())
        refuse(u"there is no folder "_s + options.folder);
    options.folder = QDir::cleanPath(asked.absoluteFilePath());
    return options;
}

QString helpText()
{
    QString text = u"Plays a scenario: one sitting at the program, line by line, and what must then be seen.\n\n"
                   "usage: zrvplay [--widgets] --folder DIR [--transcript FILE] SCENARIO\n\n"
                   "  --folder DIR        the program's folder for this sitting; it holds DBZorvan.mdb\n"
                   "  --widgets           plays on the real windows, on any Qt platform (QT_QPA_PLATFORM=offscreen\n"
                   "                      where there is no display); without it no window is made\n"
                   "  --transcript FILE   writes the account of the sitting there, not to standard output\n"
                   "  --help              this text\n\n"
                   "exit status: 0 every expectation held; 1 one failed; 2 the scenario or the folder can't be used\n\n"
                   "lines of a scenario (and include PATH, # for a comment):\n"_s;
    for (const Command &command : allCommands()) {
        const QString form = command.word + u' ' + command.arguments;
        text += u"  "_s + form.leftJustified(34) + u"  "_s + command.help + u'\n';
    }
    return text;
}

int play(const Options &options, Stage &stage)
{
    std::vector<Line> lines = readScenario(options.scenario, options.folder);
    QFile account(options.transcript);
    const bool writable =
        options.transcript.isEmpty() ? account.open(stdout, QIODevice::WriteOnly) : account.open(QIODevice::WriteOnly);
    if (!writable)
        refuse(options.transcript + u" can't be written: "_s + account.errorString());
    Transcript transcript(account);
    Player player(options.folder, stage, transcript, runProgram);
    const Status status = player.play(std::move(lines));
    if (!player.complaint().isEmpty())
        print(stderr, player.complaint() + u'\n');
    return static_cast<int>(status);
}

#ifdef ZRV_WITH_WIDGETS
bool savesPrints(const Options &options)
{
    return std::ranges::any_of(readScenario(options.scenario, options.folder),
                               [](const Line &line) { return line.command->word == u"save-print"; });
}
#endif

int playHeadless(int &argc, char **argv, const Options &options)
{
    HeadlessStage stage;
#ifdef ZRV_WITH_WIDGETS
    stage.writesPdf = writePdfFile;
    if (savesPrints(options))
        return withFonts(argc, argv, [&] { return play(options, stage); });
#endif
    const QCoreApplication application(argc, argv);
    return play(options, stage);
}

int run(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    const Options options = readOptions(arguments);
    if (options.help) {
        print(stdout, helpText());
        return static_cast<int>(Status::Held);
    }
    if (!options.widgets)
        return playHeadless(argc, argv, options);
#ifdef ZRV_WITH_WIDGETS
    return withWindows(argc, argv, [&](Stage &stage) { return play(options, stage); });
#else
    refuse(u"this zrvplay was built without windows"_s);
#endif
}

} // namespace

} // namespace zrv::player

int main(int argc, char **argv)
{
    try {
        return zrv::player::run(argc, argv);
    } catch (const std::exception &error) {
        zrv::player::print(stderr, QString::fromUtf8(error.what()) + u'\n');
        return static_cast<int>(zrv::player::Status::Unusable);
    }
}
