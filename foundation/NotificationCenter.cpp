#include "NotificationCenter.h"

#include <utility>

namespace kestrel::foundation {

NotificationCenter &NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

QMetaObject::Connection NotificationCenter::addObserver(QObject *context, const QString &name,
                                                        std::function<void(const QObject *)> observer)
{
    return connect(
        this, &NotificationCenter::posted, context,
        [name, observer = std::move(observer)](const QString &postedName, const QObject *object) {
            if (postedName == name)
                observer(object);
        },
        Qt::DirectConnection);
}

void NotificationCenter::postNotificationName(const QString &name, const QObject *object)
{
    emit posted(name, object);
}

}  // namespace kestrel::foundation
