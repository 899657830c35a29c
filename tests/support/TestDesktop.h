#pragma once

#include "tarnwell/Alerts.h"
#include "tarnwell/Folders.h"
#include "tarnwell/Installed.h"
#include "tarnwell/WebPages.h"

#include <QUrl>

namespace kestrel::test {

/// While it lives, addresses tell where visitors come from by the tag as it stands.
class TagAsQuery final : public tarnwell::WebLinkDelegate {
public:
    QString traceSuffix(const QString &tag) const override { return QStringLiteral("?from=") + tag; }
    QString phpRedirectLink(const QString &, const QString &) const override { return {}; }

private:
    tarnwell::Installed<tarnwell::WebLinkDelegate> m_installed{*this};
};

/// The alerts, folder panel and web browser while it lives: answers as it is told and notes what it was asked.
class TestDesktop final : public tarnwell::AlertPresenter, public tarnwell::FolderPanel, public tarnwell::WebOpener {
public:
    tarnwell::AlertAnswer runModal(const tarnwell::Alert &alert) override
    {
        alerts.append(alert);
        return answers.isEmpty() ? answer : answers.takeFirst();
    }
    QString chooseFolder(QWidget *, const QString &startFolder) override
    {
        startFolders.append(startFolder);
        return folder;
    }
    bool openUrl(const QUrl &url) override
    {
        opened.append(url);
        return true;
    }

    tarnwell::AlertAnswer answer = tarnwell::AlertAnswer::Default;
    QList<tarnwell::AlertAnswer> answers;  ///< of the next alerts, before `answer`
    QString folder;
    QList<tarnwell::Alert> alerts;
    QStringList startFolders;
    QList<QUrl> opened;

private:
    tarnwell::Installed<tarnwell::AlertPresenter> m_presenter{*this};
    tarnwell::Installed<tarnwell::FolderPanel> m_panel{*this};
    tarnwell::Installed<tarnwell::WebOpener> m_opener{*this};
};

}  // namespace kestrel::test
