#include "JKestrelSettingController.h"

#include "JKestrelSearchView.h"
#include "JSettingSearchObject.h"
#include "KeyPathBinder.h"
#include "foundation/Queues.h"
#include "foundation/UserDefaults.h"
#include "settings/JKestrelSetting.h"
#include "settings/ProxyRule.h"
#include "settings/SettingLists.h"
#include "tarnwell/Localization.h"
#include "tarnwell/SystemInformation.h"
#include "tarnwell/ui/Frames.h"
#include "tarnwell/ui/Motion.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_JKestrelSettingController.h"

#include <QStyle>

using namespace Qt::StringLiterals;
using kestrel::tarnwell::AppLocalizedString;

namespace kestrel {

namespace {

const QString settingKeyPath = u"appSetting"_s;

double topOf(const QWidget *view)
{
    const foundation::Rect frame = tarnwell::viewFrame(view);
    return frame.origin.y + frame.size.height;
}

double middleOf(const QWidget *view)
{
    return tarnwell::viewFrame(view).center().y;
}

QString textOf(const QLineEdit *field)
{
    return field->text().isEmpty() ? u""_s : field->text();  // typed is not the same as never set
}

}  // namespace

JKestrelSettingController &JKestrelSettingController::loadDefaultWindowController()
{
    return sharedController<JKestrelSettingController>();
}

JKestrelSettingController::JKestrelSettingController()
    : JKestrelSettingController(JKestrelSetting::ShareInst(), foundation::UserDefaults::standardUserDefaults())
{
}

JKestrelSettingController::JKestrelSettingController(JKestrelSetting &setting, foundation::UserDefaults &defaults)
    : m_setting(setting),
      m_defaults(defaults),
      m_form(std::make_unique<Ui::JKestrelSettingController>())
{
    m_markMotion.setPropertyName("pos");
    m_markMotion.setDuration(tarnwell::motionTimeMs);
    m_markMotion.setEasingCurve(QEasingCurve::OutCubic);
}

JKestrelSettingController::~JKestrelSettingController()
{
    if (isLoaded())
        m_form->searchField->setMyDelegate(nullptr);
}

void JKestrelSettingController::windowDidLoad(QDialog *window)
{
    m_form->setupUi(window);
    m_binder = std::make_unique<KeyPathBinder>(m_form->settingView, settingKeyPath, m_setting);
    setupSearchKeys();
    setUpTexts();
    layOutHardwareButtons();
    setUpLists();
    setUpFolderRows();
    setUpActions();
    setSettingViewOffset(topOf(m_form->commonLabel));
    m_markMotion.setTargetObject(m_form->selectionMark);
    setSelectionMarkPos(middleOf(m_form->commonButton));
}

/// Others change settings while the window is closed.
void JKestrelSettingController::windowWillPresent()
{
    m_form->searchField->clear();
    m_defaults.synchronize();  // what could not be saved before, for what is said of it
    m_form->saveNote->setVisible(!m_defaults.failure().isNull());
    refreshAttributes(settingKeyPath);
    showStoredValues();
}

void JKestrelSettingController::onCloseAction()
{
    storeProxy();
    JPresentWindowController::onCloseAction();
}

void JKestrelSettingController::storeProxy()
{
    if (!isPresented())
        return;
    JDownloaderSetting &downloader = *m_setting.downloader();
    downloader.setProxyURL(textOf(m_form->downloaderProxyURLField));
    downloader.setProxyPort(textOf(m_form->downloaderProxyPortField));
    downloader.setProxyEnabled(m_form->downloaderProxyEnableButton->isChecked() &&
                               validateTheProxy(downloader.proxyURL(), downloader.proxyPort()));
}

void JKestrelSettingController::setupSearchKeys()
{
    m_searchKeys = settingSearchObjects();
    m_form->searchField->setMyDelegate(this);
    m_form->searchField->setSuggestionRowFactory([](QWidget *parent) { return new JKestrelSearchView(parent); });
}

void JKestrelSettingController::setUpTexts()
{
    namespace colors = tarnwell::palette;
    if (const QString chip = tarnwell::GetAppleChipName(); !chip.isNull()) {
        m_form->hardwareButton2->setText(m_form->hardwareButton2->text().replace("Intel"_L1, chip));
        m_form->hardwareButton2->resize(m_form->hardwareButton2->sizeHint().width(), m_form->hardwareButton2->height());
    }
    tarnwell::TranslateControls(m_form->titleLabel->window());

    for (QLabel *headline :
         {m_form->titleLabel, m_form->commonLabel, m_form->videoLabel, m_form->dvdLabel, m_form->downloaderLabel})
        tarnwell::setTextStyle(headline, 18, QFont::Bold, colors::title);
    for (QLabel *note : {m_form->hardwareNote, m_form->downloaderProxyHint})
        tarnwell::setTextStyle(note, 12, QFont::Normal, colors::quietText);
    tarnwell::setTextStyle(m_form->saveNote, 12, QFont::Normal, colors::error);
    m_form->hardwareInfoButton->setAccessibleDescription(AppLocalizedString(u"Hardware Information"_s));
    m_form->sectionColumn->setBackgroundRole(QPalette::AlternateBase);
    for (QWidget *line : {m_form->headerLine, m_form->footerLine})
        line->setBackgroundRole(QPalette::Mid);
    m_form->hardwareButton2->setEnabled(m_setting.canEncodeInHardware());
    if (!m_setting.canEncodeInHardware())
        m_form->hardwareButton2->setToolTip(
            AppLocalizedString(u"This computer has no hardware encoder for H.264 video."_s));
}

void JKestrelSettingController::layOutHardwareButtons()
{
    constexpr double gap = 10;
    m_form->hardwareButton1->ensurePolished();
    m_form->hardwareButton1->resize(m_form->hardwareButton1->sizeHint().width(), m_form->hardwareButton1->height());
    const QWidget *previous = m_form->hardwareButton1;
    for (QWidget *button : {m_form->hardwareButton2, m_form->hardwareButton3}) {
        foundation::Rect frame = tarnwell::viewFrame(button);
        frame.origin.x = tarnwell::viewFrame(previous).origin.x + tarnwell::viewFrame(previous).size.width + gap;
        tarnwell::setViewFrame(button, frame);
        previous = button;
    }
}

void JKestrelSettingController::setUpLists()
{
    const QString displayLanguage = m_defaults.stringArrayForKey(u"AppleLanguages"_s).value(0, u"en"_s);
    const struct {
        QComboBox *list;
        QStringList titles;
        void (JKestrelSettingController::*action)();
    } lists[] = {
        {m_form->dvdLangList, dvdLanguageTitles(displayLanguage),
         &JKestrelSettingController::onDVDLanguageChangeAction},
        {m_form->downloadFBLList, resolutionTitles(), &JKestrelSettingController::onDownloaderFBLChangeAction},
        {m_form->downloaderFormatList, formatTitles(), &JKestrelSettingController::onDownloaderFormatChanged},
        {m_form->downloaderConcurrentList, concurrencyTitles(),
         &JKestrelSettingController::onDownloaderConcurrentChanged},
    };
    for (const auto &[list, titles, action] : lists) {
        list->clear();
        list->addItems(titles);
        list->setMaxVisibleItems(int(titles.size()));
        m_form->settingScroll->keepWheelFrom(list);
        connect(list, &QComboBox::activated, this, action);
    }
}

void JKestrelSettingController::setUpActions()
{
    for (const SectionViews &section : sections()) {
        connect(section.button, &QAbstractButton::clicked, this,
                [this, section] { (this->*section.action)(section.button); });
    }
    for (QAbstractButton *button : {m_form->hardwareButton1, m_form->hardwareButton2, m_form->hardwareButton3})
        connect(button, &QAbstractButton::clicked, this, &JKestrelSettingController::onHarewareChangedAction);
    connect(m_form->hardwareInfoButton, &QAbstractButton::clicked, this,
            &JKestrelSettingController::showHardwareSettings);
    connect(m_form->downloaderProxyEnableButton, &QAbstractButton::toggled, this,
            &JKestrelSettingController::onDownloadProxyEnableStateChanged);
    connect(m_form->downloaderProxyURLField, &QLineEdit::textChanged, this,
            &JKestrelSettingController::showProxyVerdict);
    connect(m_form->closeButton, &QAbstractButton::clicked, this, &JKestrelSettingController::onCloseAction);
    m_form->settingScroll->setMyTarget([this] { scrollChanged(); });
}

/// What no key path binds.
void JKestrelSettingController::showStoredValues()
{
    const JDownloaderSetting &downloader = *m_setting.downloader();
    m_form->dvdLangList->setCurrentIndex(int(dvdLanguageIndex(m_setting.dvd()->prefferLanguage())));
    const struct {
        QComboBox *list;
        QString title;
    } lists[] = {{m_form->downloadFBLList, resolutionTitle(downloader.preferedResolution())},
                 {m_form->downloaderFormatList, downloader.preferedFormat()},
                 {m_form->downloaderConcurrentList, concurrencyTitle(downloader.preferedConcurrent())}};
    for (const auto &[list, title] : lists)
        list->setCurrentIndex(list->findText(title, Qt::MatchExactly | Qt::MatchCaseSensitive));

    m_form->downloaderProxyEnableButton->setChecked(downloader.proxyEnabled());
    if (!downloader.proxyURL().isNull()) {
        m_form->downloaderProxyURLField->setText(downloader.proxyURL());
        m_form->downloaderProxyPortField->setText(downloader.proxyPort());
    }
    onDownloadProxyEnableStateChanged();
}

/// An address that will turn the proxy off when the window closes.
void JKestrelSettingController::showProxyVerdict()
{
    QLineEdit *field = m_form->downloaderProxyURLField;
    const bool isRefused = m_form->downloaderProxyEnableButton->isChecked() &&
                           !validateTheProxy(field->text(), m_form->downloaderProxyPortField->text());
    const QString text =
        isRefused
            ? AppLocalizedString(u"Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1"_s)
            : AppLocalizedString(u"An address is for example http://proxy.example.com or socks5://10.0.0.1."_s);
    if (m_form->downloaderProxyHint->text() == text && field->accessibleDescription() == text)
        return;
    m_form->downloaderProxyHint->setText(text);
    tarnwell::setTextStyle(m_form->downloaderProxyHint, 12, QFont::Normal,
                           isRefused ? tarnwell::palette::error : tarnwell::palette::quietText);
    field->setAccessibleDescription(text);
    field->setProperty("refused", isRefused);
    field->style()->polish(field);  // the style sheet asks for that property
}

std::array<JKestrelSettingController::SectionViews, 4> JKestrelSettingController::sections() const
{
    return {
        {{m_form->commonLabel, m_form->commonButton, &JKestrelSettingController::onCommonButtonAction},
         {m_form->videoLabel, m_form->videoButton, &JKestrelSettingController::onVideoButtonAction},
         {m_form->dvdLabel, m_form->dvdButton, &JKestrelSettingController::onDVDButtonAction},
         {m_form->downloaderLabel, m_form->downloaderButton, &JKestrelSettingController::onDownloaderButtonAction}}};
}

void JKestrelSettingController::onCommonButtonAction(const QWidget *sender)
{
    showSection(m_form->commonLabel, sender);
}

void JKestrelSettingController::onVideoButtonAction(const QWidget *sender)
{
    showSection(m_form->videoLabel, sender);
}

void JKestrelSettingController::onDVDButtonAction(const QWidget *sender)
{
    showSection(m_form->dvdLabel, sender);
}

void JKestrelSettingController::onDownloaderButtonAction(const QWidget *sender)
{
    showSection(m_form->downloaderLabel, sender);
}

void JKestrelSettingController::showSection(const QLabel *heading, const QWidget *sender)
{
    setSettingViewOffset(topOf(heading));
    setSelectionMarkPos(middleOf(sender));
}

void JKestrelSettingController::setSettingViewOffset(double y)
{
    const double visibleHeight = m_form->settingScroll->documentVisibleRect().size.height;
    m_form->settingScroll->scrollToPoint(scrollPosition(y, headingMargin, visibleHeight));
}

void JKestrelSettingController::setSelectionMarkPos(double y)
{
    QWidget *mark = m_form->selectionMark;
    const auto bottomUp = [mark](double top) { return mark->parentWidget()->height() - top - mark->height(); };
    const bool isMoving = m_markMotion.state() == QAbstractAnimation::Running;
    const double target = y - 0.5 * mark->height();
    if (!markMoves(bottomUp(isMoving ? m_markMotion.endValue().toPoint().y() : mark->y()), target))
        return;
    m_markMotion.stop();
    m_markMotion.setEndValue(QPoint(0, qRound(bottomUp(target))));
    if (mark->isVisible() && !tarnwell::reducedMotion())
        m_markMotion.start();
    else
        mark->move(m_markMotion.endValue().toPoint());
}

void JKestrelSettingController::scrollChanged()
{
    const foundation::Rect visible = m_form->settingScroll->documentVisibleRect();
    const double middles[] = {middleOf(m_form->commonLabel), middleOf(m_form->videoLabel), middleOf(m_form->dvdLabel)};
    if (const auto section = sectionInView(middles, visible.origin.y + visible.size.height))
        setSelectionMarkPos(middleOf(sections()[size_t(*section) - 1].button));
}

void JKestrelSettingController::refreshAttributes(const QString &key)
{
    m_binder->refreshAttributes(key);
}

tarnwell::SuggestionItems JKestrelSettingController::onFilterSuggestionsWithText(const QString &text)
{
    return tarnwell::GeneralSuggestionFilterSimple(m_searchKeys, text);
}

void JKestrelSettingController::onSearchFieldValueChanged(const tarnwell::SuggestionItem *item)
{
    const auto *entry = dynamic_cast<const JSettingSearchObject *>(item);
    if (!entry)
        return;
    const double visibleHeight = m_form->settingScroll->documentVisibleRect().size.height;
    m_form->settingScroll->scrollToPoint(scrollPosition(entry->position(), entryMargin, visibleHeight));
    // A turn later, when the list of suggestions has closed.
    foundation::queue::asyncMain([self = QPointer(this), number = entry->userdata()] {
        if (!self || number < 1 || number > 4)
            return;
        const SectionViews section = self->sections()[size_t(number - 1)];
        (self.data()->*section.action)(section.button);
    });
}

}  // namespace kestrel
