#include "KeyPathBinder.h"

#include <QMetaProperty>
#include <QScopedValueRollback>

namespace kestrel {

namespace {

constexpr auto keyPathProperty = "keyPath";
constexpr auto choiceProperty = "keyPathValue";

QString keyPathOf(const QWidget *control)
{
    return control->property(keyPathProperty).toString();
}

}  // namespace

KeyPathBinder::KeyPathBinder(QWidget *form, const QString &key, QObject &root) : m_key(key), m_root(root)
{
    const QMetaMethod store = metaObject()->method(metaObject()->indexOfSlot("storeSender()"));
    for (QWidget *control : form->findChildren<QWidget *>()) {
        if (!keyPathOf(control).startsWith(key + u'.'))
            continue;
        m_controls.append(control);
        if (const QMetaProperty shown = control->metaObject()->userProperty(); shown.hasNotifySignal())
            connect(control, shown.notifySignal(), this, store);
    }
}

void KeyPathBinder::refreshAttributes(const QString &key)
{
    const QScopedValueRollback loading(m_isLoading, true);
    for (QWidget *control : m_controls) {
        const QString keyPath = keyPathOf(control);
        if (keyPath == key || keyPath.startsWith(key + u'.'))
            load(control);
    }
}

void KeyPathBinder::setValue(const QString &keyPath, const QVariant &value)
{
    if (QObject *owner = ownerOf(keyPath))
        owner->setProperty(keyPath.section(u'.', -1).toLatin1(), value);
}

QVariant KeyPathBinder::value(const QString &keyPath) const
{
    const QObject *owner = ownerOf(keyPath);
    return owner ? owner->property(keyPath.section(u'.', -1).toLatin1()) : QVariant();
}

void KeyPathBinder::storeSender()
{
    const QObject *control = sender();
    if (m_isLoading)
        return;
    const QVariant shown = control->metaObject()->userProperty().read(control);
    const QVariant choice = control->property(choiceProperty);
    if (!choice.isValid())
        setValue(control->property(keyPathProperty).toString(), shown);
    else if (shown.toBool())
        setValue(control->property(keyPathProperty).toString(), choice);
}

QObject *KeyPathBinder::ownerOf(const QString &keyPath) const
{
    QStringList keys = keyPath.split(u'.');
    if (keys.size() < 2 || keys.takeFirst() != m_key)
        return nullptr;
    keys.removeLast();
    QObject *owner = &m_root;
    for (const QString &key : keys)
        owner = owner ? owner->property(key.toLatin1()).value<QObject *>() : nullptr;
    return owner;
}

void KeyPathBinder::load(QWidget *control)
{
    const QVariant stored = value(keyPathOf(control));
    const QVariant choice = control->property(choiceProperty);
    control->metaObject()->userProperty().write(control, choice.isValid() ? QVariant(stored == choice) : stored);
}

}  // namespace kestrel
