#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class QTranslator;

namespace kestrel::tarnwell {

/// `key`, the English text, in the interface language; the key itself where it has no translation, and where it is
/// empty or null. Texts that stand in tables are marked with QT_TRANSLATE_NOOP so that the catalogues pick them up.
QString AppLocalizedString(const QString &key);
/// For keys that stand in tables, in UTF-8; null where `key` is.
QString AppLocalizedString(const char *key);

/// `format` with each "%@" replaced by the next of the texts; one that stands in a text is left alone.
QString filledIn(const QString &format, const QStringList &texts);

/// The catalogue behind `AppLocalizedString` (install it with `Installed<Localization>`).
class Localization {
public:
    /// `folder` holds the catalogues (`TarnwellPublic_<code>.qm`), `language` is one of the codes ("zh-Hant"). Where
    /// there is no such catalogue every key comes back as it is.
    Localization(const QString &folder, const QString &language);
    ~Localization();

    QString localizedString(const QString &key) const;

private:
    std::unique_ptr<QTranslator> m_catalogue;
};

}  // namespace kestrel::tarnwell
