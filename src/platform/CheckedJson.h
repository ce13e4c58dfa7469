#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <initializer_list>
#include <optional>
#include <utility>
#include <vector>

/// One object of a JSON document written by hand, read with checks. A fault throws RunTimeError
/// (InvalidPropertyValue); its text begins with the place, such as `group 2 "Quay", button 1`.
///
/// A property is taken out as it is read. What is left in the end is a misspelling, and
/// RejectLeftOvers says so. A property without a default must be there.
class CheckedJson {
public:
    /// The document's outermost object. `place` is what messages call it; it may be empty.
    static CheckedJson Parse(const QByteArray& document, const QString& place = {});

    [[noreturn]] void Reject(const QString& fault) const;
    void RejectLeftOvers() const;

    bool Has(const char* key) const { return m_object.contains(QLatin1String(key)); }
    void Require(const char* key) const;

    QString Text(const char* key, const std::optional<QString>& otherwise = {});
    QStringList Texts(const char* key);
    /// A bound is within the range.
    double Number(const char* key, double least, double most, std::optional<double> otherwise = {});
    /// False if it is not there.
    bool Flag(const char* key);
    /// The value that belongs to one of a few words.
    template <typename T>
    T Choice(const char* key, std::initializer_list<std::pair<const char*, T>> choices,
             std::optional<T> otherwise = {}) {
        if (otherwise && !Has(key))
            return *otherwise;
        const QString word = Text(key);
        QStringList words;
        for (const auto& [name, value] : choices) {
            if (word == QLatin1String(name))
                return value;
            words += u'"' + QLatin1String(name) + u'"';
        }
        RejectChoice(key, words);
    }
    CheckedJson Child(const char* key);
    /// The objects of a list; none if it is not there. Messages call them by `what`, their number
    /// from 1, and the text under `nameKey`, if they have one.
    std::vector<CheckedJson> List(const char* key, const char* what, const char* nameKey);
    /// Adds the properties of `defaults` that this object does not have. `origin` says in messages
    /// where they are from.
    void AddDefaults(const QJsonObject& defaults, const QString& origin);
    /// Unchecked; undefined if it is not there.
    QJsonValue Value(const char* key) { return m_object.take(QLatin1String(key)); }

private:
    CheckedJson(QJsonObject object, QString place)
        : m_object(std::move(object)), m_place(std::move(place)) {}
    QString PlaceOf(const QString& child) const;
    QJsonValue Taken(const char* key, QJsonValue::Type type, const char* what);
    [[noreturn]] void RejectChoice(const char* key, const QStringList& words) const;

    QJsonObject m_object;
    QString m_place;
};
