// appRelauncher BUNDLE PID: waits until the process has ended, then opens the bundle.

#include "foundation/Bundle.h"
#include "foundation/Processes.h"

#include <QFile>
#include <QProcess>

#include <cstdio>

int main(int argc, char **argv)
{
    bool isNumber = false;
    const qint64 processIdentifier = argc == 3 ? QByteArray(argv[2]).toLongLong(&isNumber) : 0;
    if (!isNumber || processIdentifier <= 0) {
        std::fputs("usage: appRelauncher BUNDLE PID\n", stderr);
        return 2;
    }
    const kestrel::foundation::Bundle bundle(QFile::decodeName(argv[1]));
    if (!kestrel::foundation::waitForProcessEnd(processIdentifier)) {
        std::perror("appRelauncher: cannot wait for the process");
        return 1;
    }
    if (!QProcess::startDetached(bundle.executable(), {})) {
        std::fprintf(stderr, "appRelauncher: cannot open %s\n", argv[1]);
        return 1;
    }
    return 0;
}
