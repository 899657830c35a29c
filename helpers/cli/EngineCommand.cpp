#include "EngineCommand.h"

#include "CliSession.h"
#include "foundation/Bundle.h"
#include "modules/petrel/Download.h"
#include "modules/petrel/EngineUpdate.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

namespace {

void tell(const Surroundings &surroundings, const QString &state, const QString &text)
{
    const EngineStore store = engineStore();
    if (surroundings.json)
        printLine(QJsonDocument(QJsonObject{{u"event"_s, u"engine"_s},
                                            {u"state"_s, state},
                                            {u"text"_s, text},
                                            {u"version"_s, store.version()},
                                            {u"on_trial"_s, store.isOnTrial()},
                                            {u"path"_s, store.engine()}})
                      .toJson(QJsonDocument::Compact));
    else
        printLine(text.toUtf8());
}

ExitStatus update(const Surroundings &surroundings, CliSession &session)
{
    EngineUpdate update(
        engineStore(), engineTools(session.settings()), EngineUpdate::productSource(),
        std::make_shared<foundation::Fetcher>(foundation::Bundle::main().contentsPath(u"Frameworks/WebTransfer"_s)));
    QEventLoop loop;
    ExitStatus status = AllDone;
    QObject::connect(&update, &EngineUpdate::ended, &loop, [&](EngineUpdate::End end, const QString &text) {
        static constexpr const char *states[] = {"not-due", "up-to-date", "updated", "failed"};
        status = end == EngineUpdate::End::Failed ? SomeFailed : AllDone;
        tell(surroundings, QString::fromLatin1(states[int(end)]), text);
        loop.quit();
    });
    update.start(EngineUpdate::Asked::ByUser);
    return session.wait(loop) ? status : InterruptedBySignal;
}

}  // namespace

ExitStatus runEngine(const Surroundings &surroundings, const QStringList &arguments)
{
    if (tellUsage("engine", arguments))
        return AllDone;
    if (arguments != QStringList{u"--update"_s} && !arguments.isEmpty())
        return wrongUsage(u"\"engine\" takes nothing but --update."_s);
    CliSession session(ModuleSettingDownload);
    const EngineTools tools = engineTools(session.settings());
    if (!arguments.isEmpty())
        return update(surroundings, session);
    const QString version = engineStore().version();
    tell(surroundings, u"in-use"_s,
         version.isEmpty() ? u"The engine that Kestrel came with: "_s + tools.engine : version);
    return AllDone;
}

}  // namespace kestrel::cli
