#pragma once

#include "JSettingBase.h"

namespace kestrel {

class JVideoSetting final : public JSettingBase {
    Q_OBJECT
public:
    explicit JVideoSetting(const foundation::KeyedDecoder *coder = nullptr);
    QStringList archiveClasses() const override;
};

class JDVDSetting final : public JSettingBase {
    Q_OBJECT
    Q_PROPERTY(QString prefferLanguage READ prefferLanguage WRITE setPrefferLanguage)
public:
    explicit JDVDSetting(const foundation::KeyedDecoder *coder = nullptr);
    QStringList archiveClasses() const override;
    void encodeWithCoder(foundation::KeyedEncoder &coder) const override;

    /// "Default" or a language code.
    QString prefferLanguage() const { return m_prefferLanguage; }
    void setPrefferLanguage(const QString &code) { m_prefferLanguage = code; }

private:
    QString m_prefferLanguage;
};

class JDownloaderSetting final : public JSettingBase {
    Q_OBJECT
    Q_PROPERTY(QString preferedFormat READ preferedFormat WRITE setPreferedFormat)
    Q_PROPERTY(QString preferedResolution READ preferedResolution WRITE setPreferedResolution)
    Q_PROPERTY(qint64 preferedConcurrent READ preferedConcurrent WRITE setPreferedConcurrent)
    Q_PROPERTY(bool proxyEnabled READ proxyEnabled WRITE setProxyEnabled)
    Q_PROPERTY(QString proxyURL READ proxyURL WRITE setProxyURL)
    Q_PROPERTY(QString proxyPort READ proxyPort WRITE setProxyPort)
public:
    explicit JDownloaderSetting(const foundation::KeyedDecoder *coder = nullptr);
    QStringList archiveClasses() const override;
    void encodeWithCoder(foundation::KeyedEncoder &coder) const override;

    QString preferedFormat() const { return m_preferedFormat; }
    void setPreferedFormat(const QString &format) { m_preferedFormat = format; }
    QString preferedResolution() const { return m_preferedResolution; }
    void setPreferedResolution(const QString &resolution) { m_preferedResolution = resolution; }
    /// Downloads at the same time; 0 is unlimited. An archive that does not say is read as unlimited.
    qint64 preferedConcurrent() const { return m_preferedConcurrent; }
    void setPreferedConcurrent(qint64 downloads) { m_preferedConcurrent = downloads; }
    bool proxyEnabled() const { return m_proxyEnabled; }
    void setProxyEnabled(bool enabled) { m_proxyEnabled = enabled; }
    QString proxyURL() const { return m_proxyURL; }
    void setProxyURL(const QString &url) { m_proxyURL = url; }
    QString proxyPort() const { return m_proxyPort; }
    void setProxyPort(const QString &port) { m_proxyPort = port; }

private:
    QString m_preferedFormat;
    QString m_preferedResolution;
    qint64 m_preferedConcurrent = 5;
    bool m_proxyEnabled = false;
    QString m_proxyURL;
    QString m_proxyPort;
};

/// A value that an archive lacks reads as 0 or null here, not as the default of a new object.
class JRecorderSetting final : public JSettingBase {
    Q_OBJECT
    Q_PROPERTY(qint32 recordQuality READ recordQuality WRITE setRecordQuality)
    Q_PROPERTY(double maxFrameRate READ maxFrameRate WRITE setMaxFrameRate)
    Q_PROPERTY(QString recordVideoDeviceID READ recordVideoDeviceID WRITE setRecordVideoDeviceID)
    Q_PROPERTY(QString recordAudioDeviceID READ recordAudioDeviceID WRITE setRecordAudioDeviceID)
    Q_PROPERTY(QString recordChoices READ recordChoices WRITE setRecordChoices)
    Q_PROPERTY(bool captureMouseClick READ captureMouseClick WRITE setCaptureMouseClick)
public:
    explicit JRecorderSetting(const foundation::KeyedDecoder *coder = nullptr);
    QStringList archiveClasses() const override;
    void encodeWithCoder(foundation::KeyedEncoder &coder) const override;

    qint32 recordQuality() const { return m_recordQuality; }
    void setRecordQuality(qint32 quality) { m_recordQuality = quality; }
    /// Frames a second.
    double maxFrameRate() const { return m_maxFrameRate; }
    void setMaxFrameRate(double rate) { m_maxFrameRate = rate; }
    QString recordVideoDeviceID() const { return m_recordVideoDeviceID; }
    void setRecordVideoDeviceID(const QString &identifier) { m_recordVideoDeviceID = identifier; }
    QString recordAudioDeviceID() const { return m_recordAudioDeviceID; }
    void setRecordAudioDeviceID(const QString &identifier) { m_recordAudioDeviceID = identifier; }
    /// What was chosen last for a recording beyond the other values, as the recorder writes it down; null where nothing
    /// was.
    QString recordChoices() const { return m_recordChoices; }
    void setRecordChoices(const QString &choices) { m_recordChoices = choices; }
    bool captureMouseClick() const { return m_captureMouseClick; }
    void setCaptureMouseClick(bool capture) { m_captureMouseClick = capture; }

private:
    qint32 m_recordQuality = 1;
    double m_maxFrameRate = 30.0;
    QString m_recordVideoDeviceID = QStringLiteral("");
    QString m_recordAudioDeviceID = QStringLiteral("");
    QString m_recordChoices;
    bool m_captureMouseClick = true;
};

}  // namespace kestrel
