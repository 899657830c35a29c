#include "UnsavedEnd.h"

#include "foundation/StandardFolders.h"
#include "tarnwell/ProductInformation.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QString markPath()
{
    return foundation::stateDirectory() + u'/' + tarnwell::GetApplicationName() + u"/settings-not-saved"_s;
}

}  // namespace

void UnsavedEnd::note(bool isUnsaved) const
{
    QFile mark(markPath());
    if (isUnsaved && !mark.open(QIODevice::WriteOnly, QFile::ReadOwner | QFile::WriteOwner))
        qWarning("The next start will not tell that the settings were not saved: %ls",
                 qUtf16Printable(mark.errorString()));
    else if (!isUnsaved)
        mark.remove();
}

bool UnsavedEnd::take() const
{
    return QFile::remove(markPath());
}

}  // namespace kestrel
