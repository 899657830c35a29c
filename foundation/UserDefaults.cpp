#include "UserDefaults.h"

#include "Bundle.h"
#include "DefaultsFile.h"
#include "LanguageTags.h"
#include "Numbers.h"
#include "PropertyList.h"
#include "StandardFolders.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <chrono>
#include <optional>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

constexpr std::chrono::milliseconds lockPatience(3000);
constexpr auto identifierOutsideBundle = "com.tarnwell.kestrel"_L1;

/// `value` in the types of a property list, at every level: callers hand in narrower numbers and lists of strings as
/// well.
QVariant widened(const QVariant &value)
{
    switch (value.typeId()) {
        case QMetaType::Short:
        case QMetaType::UShort:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::Long:
            return value.toLongLong();
        case QMetaType::ULong:
            return value.toULongLong();
        case QMetaType::Float:
            return value.toDouble();
        case QMetaType::QStringList:
        case QMetaType::QVariantList: {
            QVariantList list = value.toList();
            std::ranges::transform(list, list.begin(), widened);
            return list;
        }
        case QMetaType::QVariantMap: {
            QVariantMap map = value.toMap();
            std::ranges::transform(map, map.begin(), widened);
            return map;
        }
        default:
            return value;
    }
}

/// The value that a later run reads where `value` is stored under `key`; invalid where a property list cannot hold
/// them.
QVariant asReadBack(const QString &key, const QVariant &value)
{
    const QByteArray bytes = writePropertyList(QVariantMap{{key, value}}, PropertyListFormat::Xml);
    return readPropertyList(bytes).value.value_or(QVariant()).toMap().value(key);
}

QString standardDomainPath()
{
    const QString identifier = Bundle::main().identifier();
    return configurationDirectory() + u'/' + (identifier.isEmpty() ? QString(identifierOutsideBundle) : identifier) +
           "/defaults.plist"_L1;
}

QVariantMap systemValuesNow()
{
    return {{u"AppleLanguages"_s, systemPreferredLanguages()}};
}

}  // namespace

UserDefaults::UserDefaults(const QString &domainPath, const QVariantMap &systemValues, QObject *parent)
    : QObject(parent),
      m_domainPath(domainPath),
      m_systemValues(widened(systemValues).toMap())
{
    load();
}

UserDefaults::~UserDefaults()
{
    synchronize();
}

UserDefaults &UserDefaults::standardUserDefaults()
{
    static UserDefaults defaults(standardDomainPath(), systemValuesNow());
    // While everything that a write needs is still there; the destructor runs after main.
    [[maybe_unused]] static const bool isSavedAtExit = [] {
        qAddPostRoutine([] { standardUserDefaults().synchronize(); });
        return true;
    }();
    return defaults;
}

QVariant UserDefaults::objectForKey(const QString &key) const
{
    for (const QVariantMap *layer : {&m_domain, &m_systemValues, &m_fallbacks}) {
        if (const auto entry = layer->constFind(key); entry != layer->cend())
            return *entry;
    }
    return QVariant();
}

QString UserDefaults::stringForKey(const QString &key) const
{
    const QVariant value = objectForKey(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

bool UserDefaults::boolForKey(const QString &key) const
{
    return booleanValue(objectForKey(key));
}

qint64 UserDefaults::integerForKey(const QString &key) const
{
    return integerValue(objectForKey(key));
}

QByteArray UserDefaults::dataForKey(const QString &key) const
{
    const QVariant value = objectForKey(key);
    return value.typeId() == QMetaType::QByteArray ? value.toByteArray() : QByteArray();
}

QStringList UserDefaults::stringArrayForKey(const QString &key) const
{
    const QVariant value = objectForKey(key);
    const QVariantList list = value.typeId() == QMetaType::QVariantList ? value.toList() : QVariantList();
    const auto isString = [](const QVariant &entry) { return entry.typeId() == QMetaType::QString; };
    return std::ranges::all_of(list, isString) ? QVariant(list).toStringList() : QStringList();
}

void UserDefaults::setObject(const QVariant &value, const QString &key)
{
    if (!value.isValid())
        return removeObjectForKey(key);
    const QVariant stored = asReadBack(key, widened(value));
    if (stored.isValid())
        changeDomain(key, stored);
    else
        qWarning("Defaults: a value of type %s cannot be stored as \"%ls\"", value.typeName(), qUtf16Printable(key));
}

void UserDefaults::removeObjectForKey(const QString &key)
{
    changeDomain(key, QVariant());
}

void UserDefaults::registerDefaults(const QVariantMap &fallbacks)
{
    m_fallbacks.insert(widened(fallbacks).toMap());
}

bool UserDefaults::synchronize()
{
    // What was changed and changed back, as at every start, is no reason to wait for a lock and the disk.
    m_pendingKeys.removeIf([this](const QString &key) {
        return m_domain.contains(key) == m_stored.contains(key) &&
               isSamePropertyList(m_domain.value(key), m_stored.value(key));
    });
    if (m_pendingKeys.isEmpty())
        return true;
    DefaultsFile file(m_domainPath);
    // Whoever keeps the lock for so long may keep it for ever: after one failure nobody waits for it again.
    if (!file.lock(m_failure.isNull() ? lockPatience : std::chrono::milliseconds(0)))
        return reportFailure(file.error());
    if (file.read() == DefaultsFile::State::Damaged)
        file.setAside();
    if (file.state() == DefaultsFile::State::Unavailable)
        return reportFailure(file.error());

    QVariantMap merged = file.state() == DefaultsFile::State::Readable ? file.values() : m_domain;
    for (const QString &key : m_pendingKeys) {
        if (m_domain.contains(key))
            merged.insert(key, m_domain.value(key));
        else
            merged.remove(key);
    }
    if (!isSamePropertyList(merged, file.values()) && !file.replace(merged))
        return reportFailure(file.error());
    m_domain = m_stored = merged;
    m_pendingKeys.clear();
    m_failure.clear();
    return true;
}

bool UserDefaults::keepAside(const QString &key)
{
    const QByteArray bytes = dataForKey(key);
    DefaultsFile file(m_domainPath);
    const bool isKept = bytes.isEmpty() || (file.lock(lockPatience) && file.keepAside(bytes, key));
    if (!isKept)
        reportFailure(file.error());
    return isKept;
}

void UserDefaults::load()
{
    DefaultsFile file(m_domainPath);
    // Read again under the lock: another process may have put a good file there in the meantime.
    if (file.read() == DefaultsFile::State::Damaged && file.lock(lockPatience) &&
        file.read() == DefaultsFile::State::Damaged)
        file.setAside();
    if (file.state() != DefaultsFile::State::Readable && file.state() != DefaultsFile::State::Missing)
        reportFailure(file.error());
    m_domain = m_stored = file.values();
}

void UserDefaults::changeDomain(const QString &key, const QVariant &value)
{
    if (value.isValid() == m_domain.contains(key) && isSamePropertyList(value, m_domain.value(key)))
        return;
    if (value.isValid())
        m_domain.insert(key, value);
    else
        m_domain.remove(key);
    m_pendingKeys.insert(key);
    if (m_writeScheduled)
        return;
    m_writeScheduled = true;
    // Queued rather than timed: it is kept until there is an event loop.
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_writeScheduled = false;
            synchronize();
        },
        Qt::QueuedConnection);
}

bool UserDefaults::reportFailure(const QString &reason)
{
    if (m_failure.isNull())
        qWarning("Defaults: \"%ls\" cannot be used: %ls", qUtf16Printable(m_domainPath), qUtf16Printable(reason));
    m_failure = reason.isEmpty() ? u"unknown"_s : reason;
    return false;
}

}  // namespace kestrel::foundation
