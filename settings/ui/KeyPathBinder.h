#pragma once

#include <QObject>
#include <QWidget>

namespace kestrel {

/// Binds the controls of a form to properties of an object and of the objects below it. A control is bound by a dynamic
/// property "keyPath" ("appSetting.video.videoOutputPath": the binder's key, then properties): its user property shows
/// the value and, where that can be edited, every edit is stored at once. One of several exclusive buttons has a
/// "keyPathValue" as well: the value that it stands for.
class KeyPathBinder : public QObject {
    Q_OBJECT
public:
    /// Takes in the bound controls that `form` has now; nothing is loaded yet. `root` outlives the binder.
    KeyPathBinder(QWidget *form, const QString &key, QObject &root);

    QString key() const { return m_key; }
    /// Loads every control whose key path is `key` or lies below it.
    void refreshAttributes(const QString &key);
    void setValue(const QString &keyPath, const QVariant &value);
    QVariant value(const QString &keyPath) const;

private slots:
    void storeSender();

private:
    QObject *ownerOf(const QString &keyPath) const;
    void load(QWidget *control);

    QString m_key;
    QObject &m_root;
    QList<QWidget *> m_controls;
    bool m_isLoading = false;
};

}  // namespace kestrel
