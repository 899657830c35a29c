#include "ApplicationSetUp.h"

#include "Images.h"
#include "foundation/Bundle.h"
#include "tarnwell/ProductInformation.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

void installDialogTexts(QTranslator &translator, const QString &language)
{
    if (translator.load(QLocale(language), u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator);
}

void setWindowIcon()
{
    QIcon icon;
    for (const int size : {16, 32, 48, 128})
        icon.addPixmap(pictureAt(productBundle().resource(u"icons/hicolor/%1x%1/apps/kestrel.png"_s.arg(size))));
    QApplication::setWindowIcon(icon);
}

}  // namespace kestrel::tarnwell
