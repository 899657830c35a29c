#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace kestrel::foundation {

/// Broadcasts by name. Observers are called on the poster's thread before `postNotificationName` returns, in the order
/// in which they were added, and go with their context object.
class NotificationCenter : public QObject {
    Q_OBJECT
public:
    static NotificationCenter &defaultCenter();

    /// `observer` gets the posted object (often null). It is forgotten when `context` goes, or by disconnecting the
    /// result.
    QMetaObject::Connection addObserver(QObject *context, const QString &name,
                                        std::function<void(const QObject *)> observer);
    void postNotificationName(const QString &name, const QObject *object = nullptr);

signals:
    void posted(const QString &name, const QObject *object);
};

}  // namespace kestrel::foundation
