#include "FrameDecoder.h"

#include <QFile>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#include <vector>

using namespace Qt::StringLiterals;

namespace kestrel::disc {

namespace {

// A file without a name: the tool reads and writes it at its own pace, so that nobody has to serve two pipes at once.
class MemoryFile {
public:
    MemoryFile() : m_descriptor(memfd_create("pictures", MFD_CLOEXEC)) {}
    ~MemoryFile()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    Q_DISABLE_COPY(MemoryFile)

    int descriptor() const { return m_descriptor; }
    bool fill(const QByteArray &content) const
    {
        return pwrite(m_descriptor, content.constData(), static_cast<size_t>(content.size()), 0) == content.size();
    }
    QByteArray content() const
    {
        QFile file;
        return file.open(m_descriptor, QIODevice::ReadOnly) && file.seek(0) ? file.readAll() : QByteArray();
    }

private:
    int m_descriptor;
};

[[noreturn]] void becomeTool(char *const *arguments, int input, int output, pid_t parent)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent)
        _exit(127);
    rlimit memory = {};
    getrlimit(RLIMIT_AS, &memory);
    memory.rlim_cur = memory.rlim_max;
    setrlimit(RLIMIT_AS, &memory);
    dup2(input, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    signal(SIGPIPE, SIG_DFL);
    execvp(arguments[0], arguments);
    _exit(127);
}

}  // namespace

std::optional<QByteArray> FrameDecoder::run(const QStringList &arguments, const QByteArray &input) const
{
    const MemoryFile in, out;
    if (in.descriptor() < 0 || out.descriptor() < 0 || !in.fill(input))
        return std::nullopt;
    QList<QByteArray> texts{QFile::encodeName(m_program),
                            "-hide_banner",
                            "-nostats",
                            "-loglevel",
                            "error",
                            "-threads",
                            "1",
                            "-f",
                            "mpegvideo",
                            "-i",
                            "pipe:0"};
    for (const QString &argument : arguments)
        texts.append(QFile::encodeName(argument));
    std::vector<char *> pointers;
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);

    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child == 0)
        becomeTool(pointers.data(), in.descriptor(), out.descriptor(), parent);
    int status = -1;
    if (child < 0)
        return std::nullopt;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return std::nullopt;
    return out.content();
}

QList<QByteArray> FrameDecoder::shades(const QByteArray &video) const
{
    const auto output = run({u"-vf"_s, u"scale=%1:%2:flags=area,format=gray"_s.arg(width).arg(height), u"-fps_mode"_s,
                             u"passthrough"_s, u"-f"_s, u"rawvideo"_s, u"pipe:1"_s},
                            video);
    QList<QByteArray> pictures;
    constexpr qsizetype size = width * height;
    for (qsizetype at = 0; output && at + size <= output->size(); at += size)
        pictures.append(output->mid(at, size));
    return pictures;
}

bool FrameDecoder::save(const QByteArray &video, int picture, int pictureWidth, int pictureHeight,
                        const QString &target) const
{
    const QString filter =
        u"select=eq(n\\,%1),scale=%2:%3,setsar=1"_s.arg(picture).arg(pictureWidth).arg(pictureHeight);
    return run({u"-vf"_s, filter, u"-fps_mode"_s, u"passthrough"_s, u"-frames:v"_s, u"1"_s, u"-q:v"_s, u"2"_s,
                u"-update"_s, u"1"_s, u"-y"_s, u"file:"_s + target},
               video)
        .has_value();
}

}  // namespace kestrel::disc
