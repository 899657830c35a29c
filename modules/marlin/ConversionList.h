#pragma once

#include "MediaInformation.h"

#include <QAbstractTableModel>
#include <QSet>

#include <functional>
#include <vector>

namespace kestrel {

enum class ConversionState {
    Probing,
    Unusable,  ///< no media file, or it cannot be read
    Ready,
    Waiting,  ///< for its turn in the run under way
    Converting,
    Done,
    Failed,
    Stopped,  ///< by the user
};

struct ConversionItem {
    qint64 id = 0;  ///< never used twice
    QString path;
    ConversionState state = ConversionState::Probing;
    MediaInformation information;    ///< known from Ready on
    std::optional<double> fraction;  ///< 0 to 1 while converting; nothing where the file does not tell its duration
    double processed = 0;            ///< seconds of it that are written, while converting
    QString reason;                  ///< key of the sentence that says why it failed or is unusable
    QString details;                 ///< what the tool said about it, as it is
    QString outputPath;

    bool isIn(std::initializer_list<ConversionState> states) const;
};

/// The files to convert, each of them once, as a table for the view. Files are known by their ids, because rows come
/// and go while others work on them. Main thread only.
class ConversionList : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { NameColumn, DurationColumn, FormatColumn, StateColumn, ColumnCount };
    enum Role { StateRole = Qt::UserRole, FractionRole, ProcessedRole };

    using QAbstractTableModel::QAbstractTableModel;

    /// Adds the file in state Probing and answers its id; nothing where the list has it already, under whatever name.
    std::optional<qint64> add(const QString &path);
    void removeIds(const QList<qint64> &ids);
    /// Null where it has gone.
    const ConversionItem *item(qint64 id) const;
    const ConversionItem &at(int row) const { return m_items.at(size_t(row)).item; }
    /// Runs `edit` on the item, if it is still there.
    void change(qint64 id, const std::function<void(ConversionItem &)> &edit);
    QList<qint64> idsIn(std::initializer_list<ConversionState> states) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    void itemsRemoved(const QList<qint64> &ids);

private:
    struct Row {
        ConversionItem item;
        QString identity;
    };

    int rowOf(qint64 id) const;
    void removeRange(int first, int last);

    std::vector<Row> m_items;
    QSet<QString> m_identities;
    qint64 m_lastId = 0;
};

}  // namespace kestrel
