#include "Theme.h"

#include "Images.h"
#include "Palette.h"

#include <QApplication>
#include <QFont>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

struct ColorRole {
    QPalette::ColorRole role;
    QRgb color;
};

constexpr ColorRole colorRoles[] = {
    {QPalette::Window, palette::surface},
    {QPalette::WindowText, palette::text},
    {QPalette::Base, palette::surface},
    {QPalette::AlternateBase, palette::quietSurface},
    {QPalette::Text, palette::text},
    {QPalette::PlaceholderText, palette::quietText},
    {QPalette::Button, palette::quietSurface},
    {QPalette::ButtonText, palette::text},
    {QPalette::Highlight, palette::accent},
    {QPalette::HighlightedText, palette::surface},
    {QPalette::Link, palette::accent},
    {QPalette::LinkVisited, palette::accent},
    {QPalette::ToolTipBase, palette::surface},
    {QPalette::ToolTipText, palette::text},
    {QPalette::Light, palette::surface},
    {QPalette::Midlight, palette::quietSurface},
    {QPalette::Mid, palette::line},
    {QPalette::Dark, palette::strongLine},
    {QPalette::BrightText, palette::surface},
    {QPalette::Shadow, palette::strongLine},
};

constexpr QPalette::ColorRole textRoles[] = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText};

/// The names that stand for colours in the style sheet.
struct NamedColor {
    QLatin1StringView name;
    QRgb color;
};

constexpr NamedColor namedColors[] = {
    {"<text>"_L1, palette::text},
    {"<quietText>"_L1, palette::quietText},
    {"<disabledText>"_L1, palette::disabledText},
    {"<accent>"_L1, palette::accent},
    {"<accentPressed>"_L1, palette::accentPressed},
    {"<accentTint>"_L1, palette::accentTint},
    {"<error>"_L1, palette::error},
    {"<surface>"_L1, palette::surface},
    {"<quietSurface>"_L1, palette::quietSurface},
    {"<line>"_L1, palette::line},
    {"<strongLine>"_L1, palette::strongLine},
};

/// Controls are 28 points high: content, padding and border add up to that with the plain and with the focus border.
constexpr auto sheetTemplate = R"(
QPushButton { background: <surface>; color: <text>; border: 1px solid <strongLine>; border-radius: 6px;
    padding: 0 15px; min-height: 26px; min-width: 48px }
QPushButton:hover { border-color: <accent>; background: <quietSurface> }
QPushButton:pressed { background: <accentTint> }
QPushButton:focus { border: 2px solid <accent>; padding: 0 14px; min-height: 24px }
QPushButton:disabled { border-color: <line>; background: <quietSurface>; color: <disabledText> }
QPushButton[primary="true"] { background: <accent>; border-color: <accent>; color: <surface> }
QPushButton[primary="true"]:hover, QPushButton[primary="true"]:pressed { background: <accentPressed>;
    border-color: <accentPressed> }
QPushButton[primary="true"]:focus { border-color: <accent> }
QPushButton[primary="true"]:disabled { background: <line>; border-color: <line>; color: <disabledText> }
QPushButton[quiet="true"] { background: transparent; border: 1px solid transparent; color: <accent>;
    padding: 0 7px; min-width: 0 }
QPushButton[quiet="true"]:hover { background: <quietSurface>; color: <accentPressed> }
QPushButton[quiet="true"]:pressed { background: <accentTint> }
QPushButton[quiet="true"]:focus { border: 2px solid <accent>; padding: 0 6px }
QPushButton[quiet="true"]:disabled { color: <disabledText> }

QLineEdit, QComboBox, QAbstractSpinBox { background: <surface>; border: 1px solid <strongLine>; border-radius: 6px; padding: 0 8px;
    min-height: 26px }
QLineEdit:focus, QComboBox:focus, QAbstractSpinBox:focus { border: 2px solid <accent>; padding: 0 7px; min-height: 24px }
QLineEdit[refused="true"] { border-color: <error> }
QLineEdit:disabled, QComboBox:disabled, QAbstractSpinBox:disabled { background: <quietSurface>; border-color: <line>;
    color: <disabledText> }
QComboBox { combobox-popup: 0; padding-right: 4px }
QComboBox:hover { border-color: <accent> }
QComboBox::drop-down { border: none; width: 22px }
QComboBox::down-arrow { image: url("<combo_arrow>"); width: 12px; height: 8px }
QComboBox QAbstractItemView, QComboBox QAbstractItemView:focus { border: 1px solid <strongLine>; border-radius: 0;
    padding: 4px }
QAbstractSpinBox { padding-right: 4px }
QAbstractSpinBox::up-button, QAbstractSpinBox::down-button { border: none; background: transparent; width: 18px }
QAbstractSpinBox::up-button:hover, QAbstractSpinBox::down-button:hover { background: <accentTint> }
QAbstractSpinBox::up-arrow { image: url("<spin_up>"); width: 9px; height: 6px }
QAbstractSpinBox::down-arrow { image: url("<combo_arrow>"); width: 9px; height: 6px }

QCheckBox, QRadioButton { spacing: 8px; min-height: 20px }
QCheckBox::indicator, QRadioButton::indicator { width: 16px; height: 16px; border: 1px solid <strongLine>;
    background: <surface> }
QCheckBox::indicator { border-radius: 4px }
QRadioButton::indicator { border-radius: 9px }
QCheckBox::indicator:hover, QRadioButton::indicator:hover { border-color: <accent> }
QCheckBox::indicator:checked { background: <accent>; border-color: <accent>; image: url("<check>") }
QRadioButton::indicator:checked { width: 8px; height: 8px; border: 5px solid <accent> }
QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { background: <quietSurface>; border-color: <line> }
QCheckBox::indicator:checked:disabled { background: <disabledText>; border-color: <disabledText> }
QCheckBox:disabled, QRadioButton:disabled { color: <disabledText> }
QCheckBox:focus, QRadioButton:focus { outline: none }
QCheckBox::indicator:focus { width: 14px; height: 14px; border: 2px solid <accentPressed> }
QRadioButton::indicator:unchecked:focus { width: 14px; height: 14px; border: 2px solid <accent> }

QAbstractItemView, QTextEdit, QPlainTextEdit { background: <surface>; border: 1px solid <line>; border-radius: 6px;
    selection-background-color: <accentTint>; selection-color: <text>; outline: none; gridline-color: <line> }
QAbstractItemView:focus, QTextEdit:focus, QPlainTextEdit:focus { border-color: <accent> }
QTextEdit[quiet="true"] { background: transparent; border-color: transparent }
QTextEdit[quiet="true"]:focus { border-color: <accent> }
QFrame[card="true"] { background: <quietSurface>; border: 1px solid <line>; border-radius: 6px }
QAbstractItemView::item:hover { background: <quietSurface> }
QAbstractItemView::item:selected { background: <accentTint>; color: <text> }
QHeaderView { border: none; border-radius: 0 }
QHeaderView::section { background: <quietSurface>; color: <quietText>; border: none; border-bottom: 1px solid <line>;
    padding: 0 3px; min-height: 26px }
QGroupBox { border: 1px solid <line>; border-radius: 6px; margin-top: 20px; padding: 8px }
QGroupBox::title { subcontrol-origin: margin; left: 0; color: <quietText> }
QTabWidget::pane { border: none; border-top: 1px solid <line> }
QTabBar::tab { padding: 6px 14px; border: none; border-bottom: 2px solid transparent; color: <quietText> }
QTabBar::tab:selected { color: <accent>; border-bottom-color: <accent> }
QTabBar::tab:hover, QTabBar::tab:selected:focus { background: <accentTint> }
QSlider { min-height: 20px }
QSlider::groove:horizontal { height: 4px; border-radius: 2px; background: <line> }
QSlider::sub-page:horizontal { border-radius: 2px; background: <accent> }
QSlider::handle:horizontal { width: 14px; height: 14px; margin: -6px 0; border: 1px solid <strongLine>;
    border-radius: 8px; background: <surface> }
QSlider::handle:horizontal:focus { width: 12px; height: 12px; border: 2px solid <accent> }
QProgressBar { border: none; border-radius: 3px; background: <line>; min-height: 6px; max-height: 6px;
    color: transparent }
QProgressBar::chunk { border-radius: 3px; background: <accent> }
QScrollArea { border: none }
QScrollBar { background: transparent; border: none }
QScrollBar:vertical { width: 10px }
QScrollBar:horizontal { height: 10px }
QScrollBar::handle { background: <strongLine>; border-radius: 3px; margin: 2px; min-width: 24px; min-height: 24px }
QScrollBar::handle:hover { background: <disabledText> }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0 }
QScrollBar::add-page, QScrollBar::sub-page { background: none }

QMenuBar { background: transparent; border: none }
QMenuBar::item { padding: 3px 8px; border-radius: 4px; background: transparent }
QMenuBar::item:selected { background: <accentTint> }
QMenu { background: <surface>; border: 1px solid <strongLine>; padding: 4px }
QMenu::item { padding: 5px 24px 5px 28px; border-radius: 4px }
QMenu::item:selected { background: <accent>; color: <surface> }
QMenu::item:disabled { background: transparent; color: <disabledText> }
QMenu::separator { height: 1px; background: <line>; margin: 4px 8px }
QMenu::indicator { left: 6px; width: 16px; height: 16px; border-radius: 4px }
QMenu::indicator:checked { background: <accent>; image: url("<check>") }
QToolTip { background: <surface>; color: <text>; border: 1px solid <strongLine>; padding: 2px 4px }
)"_L1;

constexpr int rowHeight = 24;

/// One of a style's own icons, made when it is first drawn: they are pictures, and the first of those makes Qt load
/// all its image plugins. Every menu bar asks for one, that hardly ever shows.
class LateIconEngine : public QIconEngine {
public:
    LateIconEngine(const QProxyStyle &style, QStyle::StandardPixmap name) : m_style(style), m_name(name) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, 1, mode, state);
    }
    QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override { return size; }
    QIconEngine *clone() const override { return new LateIconEngine(*this); }

private:
    QIcon icon() const { return m_style.QProxyStyle::standardIcon(m_name); }

    const QProxyStyle &m_style;
    QStyle::StandardPixmap m_name;
};

class HouseStyle : public QProxyStyle {
public:
    HouseStyle() : QProxyStyle(u"Fusion"_s) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        // A ring in the accent colour does not show on a button of that colour: a gap sets it off.
        if (element == PE_FrameFocusRect && widget && widget->property("primary").toBool()) {
            painter->save();
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setPen(QPen(QColor(palette::surface), 1));
            painter->setBrush(Qt::NoBrush);
            painter->drawRoundedRect(widget->rect().toRectF().adjusted(2.5, 2.5, -2.5, -2.5), 4, 4);
            painter->restore();
            return;
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    QIcon standardIcon(StandardPixmap name, const QStyleOption *option, const QWidget *widget) const override
    {
        if (name == SP_ToolBarHorizontalExtensionButton || name == SP_ToolBarVerticalExtensionButton)
            return QIcon(new LateIconEngine(*this, name));
        return QProxyStyle::standardIcon(name, option, widget);
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override
    {
        // Views measure their rows before a style sheet's word on them counts.
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        return type == CT_ItemViewItem ? size.expandedTo({0, rowHeight}) : size;
    }
};

QPalette housePalette()
{
    QPalette result;
    for (const auto &[role, color] : colorRoles)
        result.setColor(role, color);
    for (const QPalette::ColorRole role : textRoles)
        result.setColor(QPalette::Disabled, role, palette::disabledText);
    return result;
}

QFont houseFont()
{
    QFont font;
    // The one that is there comes first: a name that is not costs a search of all fonts for its likes.
    font.setFamilies({u"Liberation Sans"_s, u"Arial"_s});
    font.setPixelSize(13);
    return font;
}

QString houseStyleSheet(qreal scale)
{
    QString sheet = sheetTemplate;
    for (const auto &[name, color] : namedColors)
        sheet.replace(name, QColor(color).name());
    for (const QString &image : {u"combo_arrow"_s, u"spin_up"_s, u"check"_s}) {
        QString path = namedImagePath(image, scale);
        path.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
        sheet.replace(u'<' + image + u'>', path);
    }
    return sheet;
}

}  // namespace

void applyTheme(QApplication &application)
{
    QApplication::setStyle(new HouseStyle);
    QApplication::setPalette(housePalette());
    QApplication::setFont(houseFont());
    // Without it a styled control that moves to another parent loses the font and colours that it was given.
    QApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
    application.setStyleSheet(houseStyleSheet(application.devicePixelRatio()));
}

}  // namespace kestrel::tarnwell
