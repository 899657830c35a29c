#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

namespace kestrel::foundation {

/// Turns SIGTERM, SIGINT and SIGHUP into a signal of the event loop, so that they end the application in order. One
/// object at a time; the signals have their former effect again when it goes.
class TerminationSignals : public QObject {
    Q_OBJECT
public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void received();

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

}  // namespace kestrel::foundation
