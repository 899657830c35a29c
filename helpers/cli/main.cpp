#include "Command.h"
#include "foundation/Bundle.h"
#include "foundation/FileNames.h"
#include "foundation/LanguageTags.h"
#include "foundation/StandardFolders.h"
#include "foundation/UserDefaults.h"
#include "jobs/OutputFile.h"
#include "tarnwell/Installed.h"
#include "tarnwell/Localization.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"

#include <QCoreApplication>

#include <fcntl.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <future>
#include <memory>
#include <thread>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

namespace {

QByteArray overview()
{
    QByteArray text = "Usage: kestrel-cli [--json] COMMAND [ARGUMENT…]\n\n";
    for (const Command &command : commands())
        text += QByteArray("  ") + command.name + ' ' + command.synopsis + "\n      " + command.summary + '\n';
    return text +
           "\nkestrel-cli COMMAND --help tells its options. Exit status: 0 all done, 3 some with problems, 1 some "
           "failed,\n"
           "2 wrong usage, 130 interrupted.";
}

ExitStatus runCommand(QStringList arguments)
{
    Surroundings surroundings;
    while (!arguments.isEmpty() && arguments.first() == "--json"_L1) {
        surroundings.json = true;
        arguments.removeFirst();
    }
    const QString name = arguments.isEmpty() ? QString() : arguments.takeFirst();
    if (name == "--help"_L1 || name == "-h"_L1 || name == "--version"_L1) {
        printLine(name == "--version"_L1 ? "kestrel-cli " + tarnwell::GetAppCurrentVersion().toUtf8() : overview());
        return AllDone;
    }
    const auto found = std::find_if(commands().begin(), commands().end(),
                                    [&](const Command &command) { return name == QLatin1StringView(command.name); });
    if (found == commands().end())
        return wrongUsage(name.isEmpty()
                              ? u"Name a command; \"kestrel-cli --help\" lists them."_s
                              : u"There is no command \"%1\"; \"kestrel-cli --help\" lists them."_s.arg(name));
    return found->run(surroundings, arguments);
}

/// Whether all that was said so far is written. Tells it once.
bool isPrinted()
{
    static bool hasFailed = false;
    if ((std::fflush(stdout) != 0 || std::ferror(stdout)) && !std::exchange(hasFailed, true))
        std::fprintf(stderr, "kestrel-cli: The results cannot be written to standard output: %s\n",
                     std::strerror(errno));
    return !hasFailed;
}

/// Before anything is opened, which would take the place of a standard stream that is closed, and be written to. What
/// is put there instead cannot be used.
void fillStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0)
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

/// A reader that goes away and a file that grows too large are failures to be told, not the end.
void ignoreWriteSignals()
{
    for (const int number : {SIGPIPE, SIGXFSZ})
        std::signal(number, SIG_IGN);
}

/// What killed runs have left goes meanwhile. A disk that hangs holds the end of the program up for a moment only.
class Sweep {
public:
    Sweep()
    {
        std::packaged_task<void()> task(OutputFile::sweepDeadOwners);
        m_end = task.get_future();
        m_thread = std::thread(std::move(task));
    }
    Sweep(const Sweep &) = delete;
    Sweep &operator=(const Sweep &) = delete;

    ~Sweep()
    {
        constexpr auto patience = std::chrono::seconds(2);
        if (m_end.wait_for(patience) == std::future_status::ready)
            m_thread.join();
        else
            m_thread.detach();
    }

private:
    std::future<void> m_end;
    std::thread m_thread;
};

QString interfaceLanguage()
{
    const QStringList chosen = foundation::UserDefaults::standardUserDefaults().stringArrayForKey(u"AppleLanguages"_s);
    return chosen.isEmpty() ? u"en"_s : chosen.first();
}

}  // namespace

bool tellUsage(const char *command, const QStringList &arguments)
{
    if (!arguments.contains("--help"_L1) && !arguments.contains("-h"_L1))
        return false;
    for (const Command &row : commands()) {
        if (qstrcmp(row.name, command) == 0)
            printLine(QByteArray("Usage: kestrel-cli ") + row.name + ' ' + row.synopsis + "\n\n" + row.summary);
    }
    return true;
}

ExitStatus wrongUsage(const QString &sentence)
{
    std::fprintf(stderr, "kestrel-cli: %s\n", qUtf8Printable(sentence));
    return WrongUsage;
}

void printLine(const QByteArray &line)
{
    std::fwrite(line.constData(), 1, size_t(line.size()), stdout);
    std::fputc('\n', stdout);
    isPrinted();
}

}  // namespace kestrel::cli

int main(int argc, char **argv)
{
    using namespace kestrel;
    cli::fillStandardStreams();
    cli::ignoreWriteSignals();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"kestrel-cli"_s);
    QCoreApplication::setApplicationVersion(tarnwell::GetAppCurrentVersion());

    // The window keeps the log of its own runs in its file: this one is a program of its own.
    tarnwell::Log log(foundation::stateDirectory() + u'/' + tarnwell::GetApplicationName() + u"/command line"_s);
    const tarnwell::Installed<tarnwell::Log> installedLog(log);
    const tarnwell::QtMessageLog messageLog;
    tarnwell::Localization localization(foundation::Bundle::main().resource(u"translations"_s),
                                        cli::interfaceLanguage());
    const tarnwell::Installed<tarnwell::Localization> installedLocalization(localization);
    auto sweep = std::make_unique<cli::Sweep>();

    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments.append(foundation::decodedFileName(argv[index]));
    cli::ExitStatus status = cli::runCommand(arguments);
    if (!cli::isPrinted() && (status == cli::AllDone || status == cli::SomeWithProblems))
        status = cli::SomeFailed;
    sweep.reset();
    foundation::UserDefaults::standardUserDefaults().synchronize();
    std::fflush(nullptr);
    // Threads that greet a bus or wait for a disk must not find the program half taken down.
    _exit(status);
}
