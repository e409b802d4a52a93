#include "qt/command_line.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace horvanta {
namespace {

constexpr int badArguments = 2;

/// A session manager that starts the program again gives it `-session` and a name, which the toolkit reads.
QCommandLineOption SessionOption() {
    QCommandLineOption option(QStringLiteral("session"), QString(), QStringLiteral("name"));
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    return option;
}

int Refuse(const QString& what) {
    std::fprintf(stderr, "horvanta: %s\nTry 'horvanta --help'.\n", qPrintable(what));
    return badArguments;
}

int Print(const QString& text) {
    std::fputs(qPrintable(text), stdout);
    return 0;
}

}  // namespace

std::optional<int> ObeyArguments(int argc, char* argv[]) {
    if (argc == 1) return std::nullopt;
    const QCoreApplication console(argc, argv);
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Print this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Print the version."));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("One moment, shown in many calendars."));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions({help, version, SessionOption()});
    if (!parser.parse(QCoreApplication::arguments())) return Refuse(parser.errorText());
    const QStringList others = parser.positionalArguments();
    if (!others.isEmpty()) return Refuse(QStringLiteral("Unknown argument '%1'.").arg(others.first()));
    if (parser.isSet(help)) return Print(parser.helpText());
    if (parser.isSet(version)) return Print(QStringLiteral("Horvanta " HORVANTA_VERSION "\n"));
    return std::nullopt;
}

}  // namespace horvanta
