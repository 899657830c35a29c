#pragma once

#include "helpers/logwatcher/LogCopy.h"
#include "helpers/logwatcher/LogFile.h"
#include "helpers/logwatcher/LogFilter.h"
#include "helpers/logwatcher/LogSearch.h"
#include "tarnwell/ui/Palette.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>

namespace Ui {
class LogWindow;
}

namespace kestrel {

class LogView;

/// The viewer's window on one text file: search, filter, following, copying. Where there is nothing to show, it says
/// so, and shows the file once it is there.
class LogWindow : public QMainWindow {
    Q_OBJECT
public:
    /// `path` may be empty: no log was named.
    explicit LogWindow(const QString &path);
    ~LogWindow() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setUpLooks();
    void setUpToolBar();
    void setUpShortcuts();
    void connectWork();

    void fileGrown();
    void fileReplaced();
    void showState();
    void showSize();
    void showNote(const QString &note, QRgb color = tarnwell::palette::quietText);

    void find(LogSearch::Direction direction);
    void showFound(qint64 begin, qint64 length, bool hasWrapped);
    void markTexts();
    void applyFilter();
    void showFilterNote();
    void chooseCopy();
    void startCopy(const QString &destination);
    bool isWorking() const;
    void stopWork();

    LogFile m_file;
    LogLines m_lines;
    LogFilter m_filter;
    LogSearch m_search;
    LogCopy m_copy;
    QTimer m_filterDelay;
    std::unique_ptr<Ui::LogWindow> m_form;
    LogView *m_view;
};

}  // namespace kestrel
