#include "AlertPanel.h"

#include "Frames.h"
#include "Images.h"
#include "LabelText.h"
#include "Palette.h"
#include "ui_AlertPanel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

constexpr int minimumPanelWidth = 360;
constexpr int maximumPanelWidth = 520;
constexpr int alternateCode = QDialog::Accepted + 1;
constexpr int closedCode = alternateCode + 1;
constexpr int longestRun = 40;  ///< paths and addresses have no blanks to wrap at

QString alertImageName(AlertStyle style)
{
    switch (style) {
        case AlertStyle::Critical:
            return u"alert_critical"_s;
        case AlertStyle::Warning:
            return u"alert_warning"_s;
        case AlertStyle::Informational:
            break;
    }
    return u"alert_question"_s;
}

/// The widest line of a text that is not wrapped.
int naturalWidth(const QLabel *label)
{
    return label->fontMetrics().boundingRect(QRect(0, 0, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX), 0, label->text()).width() +
           2;
}

}  // namespace

AlertPanel::AlertPanel(const Alert &alert)
    : QDialog(nullptr, Qt::Dialog | Qt::FramelessWindowHint),
      m_ui(std::make_unique<Ui::AlertPanel>()),
      m_answerToEscape(alert.alternateButton.isNull() ? AlertAnswer::Default : alert.answerToEscape)
{
    m_ui->setupUi(this);
    setTexts(alert);
    const QPixmap icon = namedImage(alertImageName(alert.style), devicePixelRatioF());
    m_ui->iconLabel->setPixmap(icon);
    connect(m_ui->defaultButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->alternateButton, &QPushButton::clicked, this, [this] { done(alternateCode); });
    m_ui->defaultButton->setFocus();
    fitWidth();
}

AlertPanel::~AlertPanel() = default;

void AlertPanel::setTexts(const Alert &alert)
{
    setMessage(alert.message);
    m_ui->informativeLabel->setText(wrappable(alert.informativeText, longestRun));
    m_ui->informativeLabel->setVisible(!alert.informativeText.isEmpty());
    m_ui->defaultButton->setText(alert.defaultButton);
    m_ui->alternateButton->setText(alert.alternateButton);
    m_ui->alternateButton->setVisible(!alert.alternateButton.isNull());
    setWindowTitle(QApplication::applicationDisplayName());
    setAccessibleDescription(alert.informativeText);
}

void AlertPanel::fitWidth()
{
    ensurePolished();
    const QMargins margins = layout()->contentsMargins();
    const int rest = margins.left() + margins.right() + m_ui->iconLabel->sizeHint().width() + layout()->spacing();
    const int wanted = std::max(naturalWidth(m_ui->messageLabel), naturalWidth(m_ui->informativeLabel));
    const int width = std::clamp(wanted, minimumPanelWidth - rest, maximumPanelWidth - rest);
    // The height as well: beside wide buttons the layout would reckon with lines longer than these.
    for (QLabel *label : {m_ui->messageLabel, m_ui->informativeLabel})
        label->setFixedSize(width, std::max(0, label->heightForWidth(width)));
    adjustSize();
}

AlertAnswer AlertPanel::runModal()
{
    placeOver(QApplication::activeWindow());
    const int result = exec();
    if (isVisible() || result == closedCode)  // any answer closes it
        return AlertAnswer::None;
    if (result == alternateCode)
        return AlertAnswer::Alternate;
    return result == QDialog::Accepted ? AlertAnswer::Default : m_answerToEscape;
}

void AlertPanel::showBeside()
{
    placeOver(QApplication::activeWindow());
    show();
    raise();
    activateWindow();
}

void AlertPanel::setMessage(const QString &message)
{
    m_ui->messageLabel->setText(wrappable(message, longestRun));
    setAccessibleName(message);
}

void AlertPanel::closeEvent(QCloseEvent *event)
{
    // By the desktop, not by a button: to a question that is no answer.
    done(m_ui->alternateButton->isHidden() ? int(Accepted) : closedCode);
    event->accept();
}

void AlertPanel::placeOver(QWidget *window)
{
    if (window && window->windowHandle()) {
        winId();  // makes the native window
        windowHandle()->setTransientParent(window->windowHandle());
    }
    const QScreen *screen = window ? window->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    QRect place(QPoint(), size());
    place.moveCenter(window ? window->geometry().center() : screen->availableGeometry().center());
    move(keptOnScreen(place, *screen).topLeft());
}

void AlertPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(palette::strongLine));
    painter.fillRect(rect().adjusted(1, 1, -1, -1), QColor(palette::surface));
}

void AlertPanel::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        windowHandle()->startSystemMove();
}

}  // namespace kestrel::tarnwell
