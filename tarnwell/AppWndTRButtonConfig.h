#pragma once

#include <QJsonObject>

namespace kestrel::tarnwell {

/// What the button at the top right of the application window shows, as the publisher configures it. The shell hands it
/// on to the modules without reading it.
class AppWndTRButtonConfig {
public:
    static AppWndTRButtonConfig initWithDictionary(const QJsonObject &dictionary)
    {
        return AppWndTRButtonConfig(dictionary);
    }

    const QJsonObject &dictionary() const { return m_dictionary; }

private:
    explicit AppWndTRButtonConfig(const QJsonObject &dictionary) : m_dictionary(dictionary) {}

    QJsonObject m_dictionary;
};

}  // namespace kestrel::tarnwell
