#pragma once

#include "helpers/heron/DiscContents.h"

#include <QWidget>

#include <memory>

namespace Ui {
class TitlePanel;
}

namespace kestrel {

/// What of a title is wanted beside its tracks; untouched it is all of it.
struct TitleChoice {
    int firstChapter = 1, lastChapter = 0;  ///< 0 for the last
    int angle = 1;
    int burnedSubtitle = 0;  ///< from 1; 0 for none
};

/// The options of one title: to look at it, which chapters and angle are taken, which subtitles are drawn into the
/// picture. What the title or the way to keep it does not offer is not shown.
class TitlePanel : public QWidget {
    Q_OBJECT
public:
    /// `language`: the tag of the interface's, which languages are named in.
    explicit TitlePanel(const QString &language, QWidget *parent = nullptr);
    ~TitlePanel() override;

    void showTitle(const disc::DiscTitle &title, const TitleChoice &choice);
    void setUses(bool takesTitles, bool canBurn);

signals:
    void changed(const kestrel::TitleChoice &choice);
    void playClicked();

private:
    void showRows();
    void take();

    QString m_language;
    disc::DiscTitle m_title;
    bool m_takesTitles = true, m_canBurn = true;
    std::unique_ptr<Ui::TitlePanel> m_form;
};

}  // namespace kestrel
