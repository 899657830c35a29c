#include "FolderRow.h"

#include "tarnwell/Localization.h"
#include "tarnwell/ui/TextStyles.h"
#include "ui_FolderRow.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// As one line: what breaks lines, or is not to be seen, shows as a blank.
QString shownPath(const QString &path)
{
    QString shown = QDir::toNativeSeparators(path);
    std::replace_if(
        shown.begin(), shown.end(), [](QChar character) { return !character.isSurrogate() && !character.isPrint(); },
        u' ');
    return shown;
}

}  // namespace

FolderRow::FolderRow(QWidget *parent) : QWidget(parent), m_form(std::make_unique<Ui::FolderRow>())
{
    m_form->setupUi(this);
    tarnwell::setTextStyle(m_form->pathLabel, 12, QFont::Normal, tarnwell::palette::quietText);
    tarnwell::setTextStyle(m_form->noteLabel, 12, QFont::Normal, tarnwell::palette::quietText);
    setPath({});
}

FolderRow::~FolderRow() = default;

QString FolderRow::caption() const
{
    return m_form->captionLabel->text();
}

void FolderRow::setCaption(const QString &caption)
{
    m_form->captionLabel->setText(caption);
}

QString FolderRow::note() const
{
    return m_form->noteLabel->text();
}

void FolderRow::setNote(const QString &note)
{
    m_form->noteLabel->setText(note);
}

void FolderRow::setPath(const QString &path)
{
    m_path = path;
    m_form->pathLabel->setText(path.isEmpty() ? tarnwell::AppLocalizedString(u"Not chosen yet"_s) : shownPath(path));
    m_form->openButton->setEnabled(!path.isEmpty());
}

QAbstractButton *FolderRow::chooseButton() const
{
    return m_form->chooseButton;
}

QAbstractButton *FolderRow::openButton() const
{
    return m_form->openButton;
}

void FolderRow::setSectionTitle(const QString &title)
{
    const QString place = u"%1, %2"_s.arg(title, caption());
    m_form->pathLabel->setAccessibleDescription(place);
    for (QAbstractButton *button : {chooseButton(), openButton()})
        button->setAccessibleName(u"%1 (%2)"_s.arg(button->text(), place));
}

}  // namespace kestrel
