#pragma once

#include "foundation/FileNames.h"
#include "foundation/Result.h"

#include <QCommandLineParser>

#include <functional>
#include <span>

namespace kestrel::cli {

/// An option of a command whose value changes `Target`, which is what the command is to do. `apply` is false where the
/// value makes no sense.
template <typename Target>
struct Option {
    const char *name;         ///< without the dashes
    const char *valueName;    ///< null for a switch
    const char *description;  ///< in English
    bool (*apply)(const QString &value, Target &target);
    const char *refusal = nullptr;  ///< why it makes no sense, where the description does not say that
};

template <typename Target>
QString refusalOf(const Option<Target> &option, const QString &value)
{
    const QString name = QString::fromLatin1(option.name);
    const QString expected =
        QString::fromLatin1(option.valueName) + QStringLiteral(", ") + QString::fromUtf8(option.description);
    const QString why = option.refusal ? QString::fromUtf8(option.refusal) : QStringLiteral("it wants ") + expected;
    return QStringLiteral("--%1 takes no \"%2\": %3").arg(name, foundation::readableFileName(value), why);
}

/// Reads the arguments of a command and applies its options, in their order in the table. The positional arguments, or
/// one sentence that says what is wrong. `--help` prints the options and gives no positional arguments and no wrong
/// use: the value is empty then and `isHelp` true.
template <typename Target>
foundation::Result<QStringList> readArguments(const char *command, std::span<const Option<Target>> options,
                                              const QString &positional, const QStringList &arguments, Target &target,
                                              bool &isHelp)
{
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    parser.addPositionalArgument(positional.toLower(), QString(), positional);
    const QCommandLineOption help = parser.addHelpOption();
    for (const Option<Target> &option : options) {
        const QString name = QString::fromLatin1(option.name);
        const QString description = QString::fromUtf8(option.description);
        parser.addOption(option.valueName ? QCommandLineOption(name, description, QString::fromLatin1(option.valueName))
                                          : QCommandLineOption(name, description));
    }
    if (!parser.parse(QStringList{QStringLiteral("kestrel-cli ") + QString::fromLatin1(command)} + arguments))
        return foundation::Failure{parser.errorText()};
    isHelp = parser.isSet(help);
    if (isHelp) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return QStringList();
    }
    for (const Option<Target> &option : options) {
        const QString name = QString::fromLatin1(option.name);
        if (!parser.isSet(name))
            continue;
        const QStringList values = option.valueName ? parser.values(name) : QStringList{QString()};
        for (const QString &value : values) {
            if (!option.apply(value, target))
                return foundation::Failure{refusalOf(option, value)};
        }
    }
    return parser.positionalArguments();
}

/// The refusal of options that name a folder.
inline constexpr char noFolder[] = "there is no such folder";

/// A number in a range, for `apply`.
template <typename Number>
bool readNumber(const QString &text, double minimum, double maximum, Number &number)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || !(value >= minimum && value <= maximum))
        return false;
    number = Number(value);
    return true;
}

/// One of the names, whose places in the list are the values.
template <typename Choice>
bool readChoice(const QString &text, std::initializer_list<const char *> names, Choice &choice)
{
    int value = 0;
    for (const char *name : names) {
        if (text == QLatin1StringView(name)) {
            choice = Choice(value);
            return true;
        }
        ++value;
    }
    return false;
}

/// "1:02:03.5", "62.5": seconds.
bool readTime(const QString &text, double &seconds);
/// "25M", "700k", "1.5G", "123456": bytes; decimal multiples.
bool readBytes(const QString &text, qint64 &bytes);

}  // namespace kestrel::cli
