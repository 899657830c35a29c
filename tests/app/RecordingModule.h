#pragma once

#include "modules/Module.h"

#include <QWidget>

#include <memory>

namespace kestrel::test {

/// A module that writes what it is told into a shared list: "video markAppear".
class RecordingModule : public ModuleController {
public:
    RecordingModule(const QString &name, const QSize &viewSize, QStringList &messages)
        : m_title(name),
          m_name(name),
          m_messages(messages),
          m_view(viewSize.isValid() ? std::make_unique<QWidget>() : nullptr)
    {
        if (m_view)
            m_view->resize(viewSize);
    }

    void setCompletedHandler(CompletedHandler handler) override { m_completed = std::move(handler); }
    QWidget *view() override { return m_view.get(); }
    QString windowTitle() const override { return m_title; }
    void doBackAction() override
    {
        record("doBackAction");
        m_completed(this);
    }
    bool shouldTerminate() override { return m_mayTerminate; }

    void record(const char *message) { m_messages.append(m_name + u' ' + QString::fromLatin1(message)); }

    bool m_mayTerminate = false;
    QString m_title;

private:
    QString m_name;
    QStringList &m_messages;
    std::unique_ptr<QWidget> m_view;
    CompletedHandler m_completed;
};

/// One that takes every optional message.
class EagerModule final : public RecordingModule,
                          public ModuleAppearance,
                          public ModuleDisappearance,
                          public ModuleSettingSync,
                          public ModuleFirstOpenTip,
                          public ModuleCoreUpdate,
                          public ModuleRecorderSession,
                          public ModuleFileOpening {
public:
    using RecordingModule::RecordingModule;
    void markAppear() override { record("markAppear"); }
    void onViewDidDisappear() override { record("onViewDidDisappear"); }
    void syncSetting() override
    {
        record("syncSetting");
        if (m_onSync)
            m_onSync();
    }
    void showFirstOpenAppTip(bool show) override { record(show ? "showFirstOpenAppTip" : "hide tip"); }
    void checkCoreUpdateInBackground() override { record("checkCoreUpdateInBackground"); }
    void startRecorderSession() override { record("startRecorderSession"); }
    void openFiles(const QStringList &paths) override
    {
        record(qPrintable(QStringLiteral("openFiles ") + paths.join(u' ')));
    }

    std::function<void()> m_onSync;
};

}  // namespace kestrel::test
