#include "TextKey.h"

#include "Localization.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

/// At once, so that a "%2" in the first argument stays what it is.
QString filled(QString text, const QStringList &arguments)
{
    for (qsizetype place = text.indexOf(u'%'); place >= 0; place = text.indexOf(u'%', place)) {
        const int number = place + 1 < text.size() ? text.at(place + 1).digitValue() : -1;
        if (number < 1 || number > arguments.size()) {
            ++place;
            continue;
        }
        text.replace(place, 2, arguments.at(number - 1));
        place += arguments.at(number - 1).size();
    }
    return text;
}

}  // namespace

QString TextKey::localized() const
{
    return isEmpty() ? QString() : AppLocalizedString(QString::fromUtf8(m_source));
}

Sentence::Sentence(TextKey key, QStringList arguments)
    : m_key(QString::fromUtf8(key.source())),
      m_arguments(std::move(arguments))
{
}

QString Sentence::localized() const
{
    return isEmpty() ? QString() : filled(AppLocalizedString(m_key), m_arguments);
}

QString Sentence::english() const
{
    return filled(m_key, m_arguments);
}

QJsonValue Sentence::toJson() const
{
    if (isEmpty())
        return QJsonValue::Null;
    QJsonArray json{m_key};
    for (const QString &argument : m_arguments)
        json.append(argument);
    return json;
}

Sentence Sentence::fromJson(const QJsonValue &json)
{
    Sentence sentence;
    const QJsonArray texts = json.toArray();
    sentence.m_key = texts.at(0).toString();
    for (qsizetype index = 1; index < texts.size(); ++index)
        sentence.m_arguments.append(texts.at(index).toString());
    return sentence;
}

}  // namespace kestrel::tarnwell
