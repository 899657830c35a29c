#include "Localization.h"

#include "Installed.h"

#include <QTranslator>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

QString AppLocalizedString(const QString &key)
{
    const Localization *localization = Installed<Localization>::current();
    return localization && !key.isEmpty() ? localization->localizedString(key) : key;
}

QString AppLocalizedString(const char *key)
{
    return AppLocalizedString(QString::fromUtf8(key));
}

QString filledIn(const QString &format, const QStringList &texts)
{
    const QStringList pieces = format.split("%@"_L1);
    QString result = pieces.first();
    for (qsizetype i = 1; i < pieces.size(); ++i)
        result += texts.value(i - 1) + pieces[i];
    return result;
}

Localization::Localization(const QString &folder, const QString &language)
    : m_catalogue(std::make_unique<QTranslator>())
{
    // load(file, folder), not load(locale): the latter falls back from zh-Hant to whatever Chinese there is.
    (void)m_catalogue->load("TarnwellPublic_"_L1 + language, folder);
}

Localization::~Localization() = default;

QString Localization::localizedString(const QString &key) const
{
    const QString text = m_catalogue->translate("TarnwellPublic", key.toUtf8().constData());
    return text.isEmpty() ? key : text;
}

}  // namespace kestrel::tarnwell
