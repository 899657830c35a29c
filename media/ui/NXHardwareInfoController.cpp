#include "NXHardwareInfoController.h"

#include "foundation/Queues.h"
#include "media/TranscoderCodecs.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_NXHardwareInfoController.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>

namespace kestrel {

namespace palette = tarnwell::palette;
using tarnwell::setTextStyle;

namespace {

constexpr int hardwareValueWidth = 400;

QLabel *makeLabel(const QString &text, QRgb color, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTextStyle(label, 13, QFont::Normal, color);
    return label;
}

}  // namespace

NXHardwareInfoController::NXHardwareInfoController() = default;

NXHardwareInfoController::~NXHardwareInfoController() = default;

NXHardwareInfoController &NXHardwareInfoController::loadDefaultWindowController()
{
    return sharedController<NXHardwareInfoController>();
}

void NXHardwareInfoController::setEncoderPath(const QString &path)
{
    m_encoderPath = path;
}

void NXHardwareInfoController::windowDidLoad(QDialog *window)
{
    m_form = std::make_unique<Ui::NXHardwareInfoController>();
    m_form->setupUi(window);
    tarnwell::TranslateControls(window);
    setTextStyle(m_form->titleLabel, 18, QFont::Bold, palette::title);
    QSizePolicy policy = m_form->progressBar->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_form->progressBar->setSizePolicy(policy);
    m_form->closeButton->setFocus();
    connect(m_form->copyButton, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(hardwareText(m_rows)); });
    connect(m_form->closeButton, &QPushButton::clicked, this, &NXHardwareInfoController::onCloseAction);
}

void NXHardwareInfoController::windowWillPresent()
{
    gather();
}

void NXHardwareInfoController::gather()
{
    m_form->progressBar->show();
    m_form->copyButton->setEnabled(!m_rows.isEmpty());
    foundation::queue::asyncGlobal([self = QPointer(this), number = ++m_gathering] {
        const HardwareInformation hardware = hardwareInformation();
        foundation::queue::asyncMain([self, hardware, number] {
            if (self && self->m_gathering == number)
                self->askTranscoder(hardware);
        });
    });
}

void NXHardwareInfoController::askTranscoder(const HardwareInformation &hardware)
{
    m_query = std::make_unique<CodecQuery>(m_encoderPath);
    connect(m_query.get(), &CodecQuery::answered, this,
            [this, hardware](const TranscoderCodecs &codecs) { showRows(hardwareRows(hardware, codecs)); });
    m_query->start();
}

void NXHardwareInfoController::showRows(const QList<HardwareRow> &rows)
{
    m_rows = rows;
    m_form->progressBar->hide();
    m_form->copyButton->setEnabled(true);
    qDeleteAll(m_form->rowsView->findChildren<QLabel *>(Qt::FindDirectChildrenOnly));
    for (int i = 0; i < rows.size(); ++i) {
        QLabel *value = makeLabel(rows[i].value, palette::text, m_form->rowsView);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        value->setWordWrap(true);
        value->setFixedWidth(hardwareValueWidth);
        m_form->rowsLayout->addWidget(makeLabel(rows[i].label, palette::quietText, m_form->rowsView), i, 0);
        m_form->rowsLayout->addWidget(value, i, 1);
    }
}

}  // namespace kestrel
