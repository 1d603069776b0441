// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/guide/HelpFile.h"

#include "core/RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QHelpEngine>
#include <QHelpLink>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <algorithm>

namespace zelvia
{
namespace
{

const QString kNamespace = QStringLiteral("zelvia.guida");
const QString kAddress = QStringLiteral("qthelp://zelvia.guida/guida/");

void RequireDriver()
{
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"))) {
        throw ErroreRunTime(Errore::Interno, "Per leggere la Guida manca il componente SQLite di Qt");
    }
}

/// True when the help file's database passes its own integrity check.
bool IsSoundDatabase(const QString& path)
{
    const QString connection = QStringLiteral("zelvia.guida.esame");
    bool sound = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        database.setDatabaseName(path);
        if (database.open()) {
            QSqlQuery query(QStringLiteral("PRAGMA integrity_check(1)"), database);
            sound = query.next() && query.value(0).toString() == QLatin1String("ok");
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return sound;
}

/// In the system's temporary folder, whose name is empty when it can't be reached.
QString TemporaryPlace()
{
    if (QDir::tempPath().isEmpty()) {
        throw ErroreRunTime(Errore::AccessoPercorso);
    }
    return QDir::tempPath() + QStringLiteral("/zelvia-guida-XXXXXX");
}

[[noreturn]] void RaiseDamaged()
{
    throw ErroreRunTime(Errore::Interno, Text("Il file della Guida è danneggiato"_t));
}

} // namespace

HelpFile::HelpFile(const QString& path) : folder_(TemporaryPlace())
{
    RequireDriver();
    if (!folder_.isValid()) {
        throw ErroreRunTime(Errore::AccessoPercorso);
    }
    if (!IsSoundDatabase(path) || QHelpEngineCore::namespaceName(path) != kNamespace) {
        RaiseDamaged();
    }
    engine_ = std::make_unique<QHelpEngine>(folder_.filePath(QStringLiteral("raccolta.qhc")));
    engine_->setReadOnly(false);
    engine_->setUsesFilterEngine(true);
    if (!engine_->setupData()) {
        throw ErroreRunTime(Errore::AccessoPercorso);
    }
    if (!engine_->registerDocumentation(path) || !IsWhole()) {
        RaiseDamaged();
    }
}

HelpFile::~HelpFile() = default;

bool HelpFile::IsWhole() const
{
    const QList<QUrl> files = engine_->files(kNamespace, QString());
    return files.contains(FirstPage()) &&
           std::none_of(files.begin(), files.end(), [this](const QUrl& file) { return Data(file).isEmpty(); });
}

QByteArray HelpFile::Data(const QUrl& address) const
{
    return engine_->fileData(address.adjusted(QUrl::RemoveFragment));
}

QUrl HelpFile::FirstPage()
{
    return QUrl(kAddress + QStringLiteral("index.html"));
}

QUrl HelpFile::Topic(const QString& name) const
{
    const QList<QHelpLink> places = engine_->documentsForIdentifier(name);
    return places.isEmpty() ? FirstPage() : places.first().url;
}

} // namespace zelvia
