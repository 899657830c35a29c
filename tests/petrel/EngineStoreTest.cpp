#include "modules/petrel/EngineStore.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

const QByteArray key = QByteArray(32, 'k').toBase64();
using enum EngineStore::Damage;

const QByteArray engineBytes = "#!/bin/sh\necho 2024.1.2\n";

/// Good where the signature is made of the length of the message.
bool verify(const QByteArray &, const QByteArray &signature, const QByteArray &message)
{
    return signature == QByteArray(64, char(message.size()));
}

QByteArray document(QByteArray text)
{
    return text + "signature: " + QByteArray(64, char(text.size())).toBase64() + '\n';
}

QByteArray text(const QByteArray &version = "2024.1.2", qint64 length = engineBytes.size())
{
    return "Kestrel download engine 1\nversion: " + version +
           "\nfile: https://a.example/e\nlength: " + QByteArray::number(length) +
           "\nsha256: " + QCryptographicHash::hash(engineBytes, QCryptographicHash::Sha256).toHex() + '\n';
}

TEST(EngineReleaseTest, OnlyWhatIsSignedAndMakesSense)
{
    const auto good = EngineRelease::fromDocument(document(text()), key, verify);
    ASSERT_TRUE(good) << good.reason().toStdString();
    EXPECT_EQ(good->version, u"2024.1.2"_s);
    EXPECT_TRUE(good->obstacle(engineBytes).isNull());
    EXPECT_FALSE(good->obstacle(engineBytes + ' ').isNull());
    EXPECT_FALSE(good->obstacle(QByteArray(engineBytes).replace('2', '3')).isNull());

    QByteArray changed = document(text());
    changed.replace("a.example", "evil.example");
    QByteArray added = document(text());
    added.append("file: https://evil.example/e\n");
    const std::pair<const char *, QByteArray> cases[] = {
        {"unsigned", text()},
        {"changed afterwards", changed},
        {"added to afterwards", added},
        {"cut off", document(text()).chopped(20)},
        {"a version that is a path", document(text("../../x"))},
        {"no version", document(text(""))},
        {"too long a file", document(text("2024.1.2", EngineRelease::maximumLength + 1))},
        {"no length", document(text("2024.1.2", 0))},
        {"a local file", document(text().replace("https://a.example", "file://"))},
        {"another kind", document(text().replace("engine 1", "engine 2"))},
        {"empty", {}},
    };
    for (const auto &[name, bytes] : cases)
        EXPECT_FALSE(EngineRelease::fromDocument(bytes, key, verify)) << name;
    EXPECT_FALSE(EngineRelease::fromDocument(document(text()), "short", verify));
}

TEST(EngineReleaseTest, VersionsAreOrderedByTheirNumbers)
{
    const std::pair<QString, QString> older[] = {{u"2023.03.04"_s, u"2023.11.16"_s},
                                                 {u"2023.9.1"_s, u"2023.10.1"_s},
                                                 {u"2023.03.04"_s, u"2023.03.04.1"_s},
                                                 {u"nonsense"_s, u"1"_s},
                                                 {QString(), u"2023.1"_s}};
    for (const auto &[left, right] : older) {
        EXPECT_LT(compareEngineVersions(left, right), 0) << left.toStdString();
        EXPECT_GT(compareEngineVersions(right, left), 0) << left.toStdString();
    }
    EXPECT_EQ(compareEngineVersions(u"2023.03.04"_s, u"2023.3.4"_s), 0);
}

class EngineStoreTest : public testing::Test {
protected:
    EngineStoreTest()
    {
        QFile bundled(m_folder.filePath(u"bundled"_s));
        EXPECT_TRUE(bundled.open(QIODevice::WriteOnly));
        bundled.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString bundled() const { return m_folder.filePath(u"bundled"_s); }
    QString install(const QByteArray &version)
    {
        const auto release = EngineRelease::fromDocument(document(text(version)), key, verify);
        const auto path = store.install(*release, engineBytes);
        store.adopt(release->version);
        return path ? *path : QString();
    }

    QTemporaryDir m_folder;
    EngineStore store{m_folder.filePath(u"engine"_s), bundled()};
};

TEST_F(EngineStoreTest, ANewOneIsOnTrialAndGoesBackByItself)
{
    EXPECT_EQ(store.engine(), bundled());
    EXPECT_FALSE(store.fallBack(bundled(), OneAddress));
    const QString first = install("2024.1.2");
    EXPECT_EQ(store.engine(), first);
    EXPECT_TRUE(QFileInfo(first).isExecutable());
    store.prove(bundled());  // by a job that began before
    EXPECT_TRUE(store.isOnTrial());
    EXPECT_EQ(store.fallBack(bundled(), OneAddress), first);
    store.prove(first);
    EXPECT_FALSE(store.fallBack(first, OneAddress));

    install("2024.2.1");
    const QString third = install("2024.3.1");  // before the second ever worked
    EXPECT_EQ(store.engine(), third);
    // An address that neither can is the fault of neither; a success tells where it was of the same.
    EXPECT_EQ(store.fallBack(third, OneAddress), first);
    EXPECT_FALSE(store.fallBack(first, OneAddress));
    EXPECT_EQ(store.fallBack(third, Broken), first);
    EXPECT_FALSE(store.fallBack(first, OneAddress));
    store.prove(first);
    EXPECT_FALSE(store.isRuledOut(u"2024.3.1"_s));
    store.prove(first, third);
    EXPECT_TRUE(store.isRuledOut(u"2024.3.1"_s));
    EXPECT_FALSE(QFile::exists(third));
    EXPECT_EQ(store.engine(), first);
    EXPECT_EQ(store.fallBack(first, Broken), bundled());
}

TEST_F(EngineStoreTest, WhatIsNotWholeOrIsGoneIsNotUsed)
{
    const auto release = EngineRelease::fromDocument(document(text()), key, verify);
    EXPECT_FALSE(store.install(*release, engineBytes.chopped(1)));
    EXPECT_EQ(store.engine(), bundled());
    const QString path = install("2024.1.2");
    QFile::remove(path);
    EXPECT_EQ(store.engine(), bundled());
    const QString later = install("2024.1.3");
    EXPECT_EQ(store.engine(), later);
    QFile::resize(bundled(), 1);  // another bundle
    EXPECT_EQ(store.engine(), bundled());
}

TEST_F(EngineStoreTest, ThePublisherIsAskedOnceInSixHours)
{
    const QDateTime noon = QDateTime::fromSecsSinceEpoch(1'800'000'000);
    EXPECT_TRUE(store.takeTurn(noon));
    EXPECT_FALSE(store.takeTurn(noon.addSecs(6 * 3600 - 1)));
    EXPECT_TRUE(store.takeTurn(noon.addSecs(6 * 3600)));
    EXPECT_TRUE(store.takeTurn(noon.addDays(-400)));  // the clock was wrong
}

}  // namespace

}  // namespace kestrel
