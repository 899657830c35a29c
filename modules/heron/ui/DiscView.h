#pragma once

#include "TitlePanel.h"

#include "modules/heron/DiscTexts.h"

#include <QHash>
#include <QPixmap>
#include <QWidget>

#include <memory>

class QTreeWidgetItem;

namespace Ui {
class DiscView;
}

namespace kestrel {

/// Of a file, as large as the place takes it, at its own shape; null where it is none.
QPixmap discPicture(const QString &path, QSize size, qreal scale);

/// A disc as its owner sees it: cover, name and length, and its titles with their tracks, to be chosen by check boxes.
class DiscView : public QWidget {
    Q_OBJECT
public:
    /// `language`: the tag of the interface's, which languages are named in.
    explicit DiscView(const QString &language, QWidget *parent = nullptr);
    ~DiscView() override;

    void clear();
    void showReading(const QString &name);
    void showFailure(const QString &name, const QString &sentence);
    /// `plan` has the language whose sound comes first.
    void showDisc(const disc::DiscContents &contents, const DiscPlan &plan);
    /// Of a title, or of the disc for 0.
    void setPicture(int title, const QString &path);
    /// Whether titles can be chosen, which are not where the whole disc is kept, and whether subtitles can be drawn
    /// into their pictures.
    void setChoosing(bool takesTitles, bool canBurn);
    /// Those of the title that is selected, right of the titles.
    void setOptionsVisible(bool visible);
    /// What comes of it, under the titles.
    void setChoiceText(const QString &text);

    QList<int> chosenTitles() const;
    /// What is chosen of a title: tracks, chapters, angle, what is drawn into the picture.
    void fillIn(int title, DiscPlan &plan) const;

signals:
    void choiceChanged();
    void playRequested(int title);

private:
    enum ItemRole { NumberRole = Qt::UserRole, KindRole };
    enum ItemKind { TitleItem, SoundItem, SubtitleItem };

    void showHead(const QString &name, const QString &facts);
    void addTitle(const disc::DiscTitle &title, const DiscPlan &plan);
    void addActions();
    void showOptions();
    void takeOptions(const TitleChoice &choice);
    void play();
    void addTrack(QTreeWidgetItem &title, ItemKind kind, int number, const QString &text);
    QTreeWidgetItem *itemOf(int title) const;
    /// That which is selected, or the title of the track that is; 0 for none.
    int currentTitle() const;
    std::optional<QList<int>> chosenTracks(int title, ItemKind kind) const;

    QString m_language;
    QList<disc::DiscTitle> m_titles;
    QHash<int, TitleChoice> m_choices;  ///< of those that were touched
    bool m_showsOptions = false, m_canBurn = false;
    std::unique_ptr<Ui::DiscView> m_form;
    TitlePanel *m_options;
};

}  // namespace kestrel
