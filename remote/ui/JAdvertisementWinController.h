#pragma once

#include "remote/ADItem.h"
#include "tarnwell/ui/ModalSession.h"

#include <QImage>
#include <QObject>

#include <memory>

class QPushButton;

namespace Ui {
class JAdvertisementWinController;
}

namespace kestrel {

namespace foundation {
class UserDefaults;
}

/// A modal window with one promotion of the publisher's: a picture, a headline, a text, a button that opens a page and
/// one that declines, which is remembered. Closing it any other way leaves no trace. Main thread only.
class JAdvertisementWinController final : public QObject {
    Q_OBJECT
public:
    /// Shows the promotion, unless it has been declined too often; returns when it is closed. `data` is the picture as
    /// it was fetched, or null.
    static void ShowAdvertisement(const std::optional<ADItem> &item, const QByteArray &data,
                                  foundation::UserDefaults &defaults);
    /// The same with the picture as it was read, which takes its time and may be done on any thread
    /// (PromotionPicture.h).
    static void ShowAdvertisementWithImage(const std::optional<ADItem> &item, const QImage &picture,
                                           foundation::UserDefaults &defaults);
    /// The picture, or the application's icon where it is none that can be shown.
    static QImage imageFromData(const QByteArray &data);

    explicit JAdvertisementWinController(foundation::UserDefaults &defaults);
    ~JAdvertisementWinController() override;

    // To be set before the window is made.
    const std::optional<ADItem> &myItem() const { return m_myItem; }
    void setMyItem(const std::optional<ADItem> &item) { m_myItem = item; }
    QImage myImage() const { return m_myImage; }
    void setMyImage(const QImage &image) { m_myImage = image; }

    tarnwell::TitledWindow *window();  ///< made on first use
    /// Shows the window in the middle of the screen and returns when it is closed.
    void showPrompt();

    void onCheckAciton();   ///< opens the promotion's page, if it has one, and closes the window
    void onCancelAciton();  ///< declines the promotion and closes the window
    void onCloseWindow();

private:
    void windowDidLoad();
    void setTexts(const ADItem &item);
    void placeButtons(const ADItem &item);

    foundation::UserDefaults &m_defaults;
    std::optional<ADItem> m_myItem;
    QImage m_myImage;
    std::unique_ptr<tarnwell::TitledWindow> m_window;
    std::unique_ptr<Ui::JAdvertisementWinController> m_form;
    tarnwell::ModalSession m_session;
};

}  // namespace kestrel
