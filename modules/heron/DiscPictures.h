#pragma once

#include "DiscTools.h"

#include "jobs/WorkFolder.h"

#include <QObject>

#include <memory>

namespace kestrel {

/// Makes a picture of a disc's film and of its titles, one after another in the background; the files go with the
/// object or the next disc. Main thread.
class DiscPictures : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    ~DiscPictures() override;

    /// In this order; 0 stands for the film as a whole. What was under way ends.
    void make(const DiscTools &tools, const QString &source, const QList<int> &titles);
    void stop();

signals:
    void made(int title, const QString &path);

private:
    void next();

    DiscTools m_tools;
    QString m_source;
    QList<int> m_titles;
    std::unique_ptr<WorkFolder> m_folder;
    std::unique_ptr<ToolProcess> m_tool;
};

}  // namespace kestrel
