#pragma once

#include "modules/heron/DiscTexts.h"

#include <QWidget>

#include <memory>

class QTreeWidgetItem;

namespace Ui {
class DiscView;
}

namespace kestrel {

/// A disc as its owner sees it: cover, name and length, and its titles with their tracks, to be chosen by check boxes.
class DiscView : public QWidget {
    Q_OBJECT
public:
    /// `language`: the tag of the interface's, which languages are named in.
    explicit DiscView(const QString &language, QWidget *parent = nullptr);
    ~DiscView() override;

    void showReading(const QString &name);
    void showFailure(const QString &name, const QString &sentence);
    void showDisc(const disc::DiscContents &contents);
    /// Of a title, or of the disc for 0.
    void setPicture(int title, const QString &path);
    /// Whether titles can be chosen: not where the whole disc is kept.
    void setChoosing(bool enabled);
    /// What comes of it, under the titles.
    void setChoiceText(const QString &text);

    QList<int> chosenTitles() const;
    /// Tracks of a title, from 1; nothing for all of them.
    std::optional<QList<int>> chosenSound(int title) const;
    std::optional<QList<int>> chosenSubtitles(int title) const;

signals:
    void choiceChanged();

private:
    enum ItemRole { NumberRole = Qt::UserRole, KindRole };
    enum ItemKind { TitleItem, SoundItem, SubtitleItem };

    void showHead(const QString &name, const QString &facts);
    void addTitle(const disc::DiscTitle &title);
    void addTrack(QTreeWidgetItem &title, ItemKind kind, int number, const QString &text);
    QTreeWidgetItem *itemOf(int title) const;
    std::optional<QList<int>> chosenTracks(int title, ItemKind kind) const;

    QString m_language;
    std::unique_ptr<Ui::DiscView> m_form;
};

}  // namespace kestrel
