#include "CheckedJson.h"

#include "RunTimeError.h"

#include <QJsonArray>
#include <QJsonDocument>

CheckedJson CheckedJson::Parse(const QByteArray& document, const QString& place) {
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(document, &error);
    CheckedJson root(json.object(), place);
    if (error.error != QJsonParseError::NoError)
        root.Reject(QStringLiteral("not valid JSON: %1 at byte %2")
                        .arg(error.errorString())
                        .arg(error.offset));
    if (!json.isObject())
        root.Reject(QStringLiteral("the document must be an object"));
    return root;
}

void CheckedJson::Reject(const QString& fault) const {
    throw RunTimeError(RunTimeErrorNumber::InvalidPropertyValue,
                       m_place.isEmpty() ? fault : m_place + QStringLiteral(": ") + fault);
}

void CheckedJson::RejectLeftOvers() const {
    if (!m_object.isEmpty())
        Reject(QStringLiteral("\"%1\" is not known here").arg(m_object.keys().first()));
}

void CheckedJson::RejectChoice(const char* key, const QStringList& words) const {
    Reject(QStringLiteral("\"%1\" must be one of ").arg(QLatin1String(key)) +
           words.join(QStringLiteral(", ")));
}

void CheckedJson::Require(const char* key) const {
    if (!Has(key))
        Reject(QStringLiteral("\"%1\" is missing").arg(QLatin1String(key)));
}

QJsonValue CheckedJson::Taken(const char* key, QJsonValue::Type type, const char* what) {
    Require(key);
    QJsonValue value = Value(key);
    if (value.type() != type)
        Reject(QStringLiteral("\"%1\" must be %2").arg(QLatin1String(key), QLatin1String(what)));
    return value;
}

QString CheckedJson::Text(const char* key, const std::optional<QString>& otherwise) {
    return otherwise && !Has(key) ? *otherwise
                                  : Taken(key, QJsonValue::String, "a text").toString();
}

QStringList CheckedJson::Texts(const char* key) {
    QStringList texts;
    for (const auto& item : Taken(key, QJsonValue::Array, "a list").toArray()) {
        if (!item.isString())
            Reject(QStringLiteral("\"%1\" must be a list of texts").arg(QLatin1String(key)));
        texts += item.toString();
    }
    return texts;
}

double CheckedJson::Number(const char* key, double least, double most,
                           std::optional<double> otherwise) {
    if (otherwise && !Has(key))
        return *otherwise;
    const double value = Taken(key, QJsonValue::Double, "a number").toDouble();
    if (!(value >= least && value <= most))
        Reject(QStringLiteral("\"%1\" must be from %2 to %3")
                   .arg(QLatin1String(key))
                   .arg(least)
                   .arg(most));
    return value;
}

bool CheckedJson::Flag(const char* key) {
    return Has(key) && Taken(key, QJsonValue::Bool, "true or false").toBool();
}

QString CheckedJson::PlaceOf(const QString& child) const {
    return m_place.isEmpty() ? child : m_place + QStringLiteral(", ") + child;
}

CheckedJson CheckedJson::Child(const char* key) {
    return {Taken(key, QJsonValue::Object, "an object").toObject(),
            PlaceOf(QStringLiteral("\"%1\"").arg(QLatin1String(key)))};
}

void CheckedJson::AddDefaults(const QJsonObject& defaults, const QString& origin) {
    for (auto property = defaults.begin(); property != defaults.end(); ++property)
        if (!m_object.contains(property.key()))
            m_object.insert(property.key(), property.value());
    m_place = PlaceOf(origin);
}

std::vector<CheckedJson> CheckedJson::List(const char* key, const char* what, const char* nameKey) {
    std::vector<CheckedJson> entries;
    if (!Has(key))
        return entries;
    for (const auto& item : Taken(key, QJsonValue::Array, "a list").toArray()) {
        QString place =
            PlaceOf(QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(entries.size() + 1));
        const QString name = item[QLatin1String(nameKey)].toString();
        if (!name.isEmpty())
            place += QStringLiteral(" \"%1\"").arg(name);
        entries.push_back(CheckedJson(item.toObject(), place));
        if (!item.isObject())
            entries.back().Reject(QStringLiteral("must be an object"));
    }
    return entries;
}
