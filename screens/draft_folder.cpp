#include "screens/draft_folder.hpp"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QSaveFile>

namespace kova::screens {

namespace {

/// Programs at one time for one shop.
constexpr int MostPlaces = 9;
constexpr int Version = 1;
const QString LockName = QStringLiteral("em-uso");
const QString VersionKey = QStringLiteral("versao");
const QString RowKey = QStringLiteral("chave");
const QString FieldsKey = QStringLiteral("campos");
const QString LabelKey = QStringLiteral("campo");
const QString BeforeKey = QStringLiteral("antes");
const QString TypedKey = QStringLiteral("digitado");

QByteArray Written(const Draft& draft)
{
    QJsonArray fields;
    for (const Draft::Field& field : draft.fields)
        fields.append(
            QJsonObject{{LabelKey, field.label}, {BeforeKey, field.before}, {TypedKey, field.typed}});
    return QJsonDocument(
               QJsonObject{{VersionKey, Version}, {RowKey, QString::number(draft.key)}, {FieldsKey, fields}})
        .toJson(QJsonDocument::Compact);
}

std::optional<Draft> ReadFrom(const QByteArray& text)
{
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    bool isNumber = false;
    Draft draft;
    draft.key = object[RowKey].toString().toLongLong(&isNumber);
    if (object[VersionKey].toInt() != Version || !isNumber)
        return std::nullopt;
    for (const QJsonValue& value : object[FieldsKey].toArray())
        draft.fields.append(
            {value[LabelKey].toString(), value[BeforeKey].toString(), value[TypedKey].toString()});
    return draft;
}

} // namespace

DraftFolder::DraftFolder(const QString& folder)
{
    for (int number = 1; number <= MostPlaces && place_.isEmpty(); ++number) {
        const QString place = folder + QLatin1Char('/') + QString::number(number);
        if (!QDir().mkpath(place))
            return;
        lock_ = std::make_unique<QLockFile>(place + QLatin1Char('/') + LockName);
        lock_->setStaleLockTime(0);
        if (lock_->tryLock())
            place_ = place;
    }
}

DraftFolder::~DraftFolder() = default;

std::optional<Draft> DraftFolder::Read(const QString& name) const
{
    QFile file(FileOf(name));
    if (place_.isEmpty() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return ReadFrom(file.readAll());
}

// Nobody else reads it from the first byte on.
bool DraftFolder::Write(const QString& name, const Draft& draft) const
{
    QSaveFile file(FileOf(name));
    if (place_.isEmpty() || !file.open(QIODevice::WriteOnly)
        || !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        return false;
    file.write(Written(draft));
    return file.commit();
}

void DraftFolder::Remove(const QString& name) const
{
    if (!place_.isEmpty())
        QFile::remove(FileOf(name));
}

} // namespace kova::screens
