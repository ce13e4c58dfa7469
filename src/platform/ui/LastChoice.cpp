#include "LastChoice.h"

#include "CheckList.h"
#include "DateTimeRange.h"
#include "Settings.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>

#include <algorithm>

namespace {

const QString Section = QStringLiteral("LastChoices");
constexpr QChar Between = u'\n'; // of several texts in one setting

/// Calls `use` with each control of a kind and the key of its setting.
template <typename Control, typename Use>
void ForEach(const QDialog& dialog, Use&& use) {
    for (Control* control : dialog.findChildren<Control*>())
        if (!control->objectName().startsWith(QStringLiteral("qt_")))
            use(*control, dialog.objectName() + u'_' + control->objectName());
}

void Save(const QString& key, const QString& value) {
    SaveSetting(SettingsApplication, Section, key, value);
}
QString Saved(const QString& key) { return GetSetting(SettingsApplication, Section, key); }

/// The list is not a part of a check list or of a combo box.
bool IsListOfRows(const QAbstractItemView& list) {
    return list.parentWidget()->inherits("QDialog") && list.selectionModel();
}

void SaveChoices(const QDialog& dialog) {
    ForEach<QComboBox>(
        dialog, [](const QComboBox& box, const QString& key) { Save(key, box.currentText()); });
    ForEach<QCheckBox>(dialog, [](const QCheckBox& box, const QString& key) {
        Save(key, BooleanText(box.isChecked()));
    });
    ForEach<CheckList>(dialog, [](const CheckList& list, const QString& key) {
        Save(key, list.UncheckedTexts().join(Between));
    });
    ForEach<DateTimeRange>(
        dialog, [](const DateTimeRange& range, const QString& key) { Save(key, range.ToText()); });
    ForEach<QAbstractItemView>(dialog, [](const QAbstractItemView& list, const QString& key) {
        if (IsListOfRows(list))
            Save(key, list.currentIndex().siblingAtColumn(0).data().toString());
    });
}

void RestoreCheckBoxes(const QDialog& dialog) {
    QList<std::pair<QCheckBox*, bool>> boxes;
    ForEach<QCheckBox>(dialog, [&](QCheckBox& box, const QString& key) {
        const QString saved = Saved(key);
        boxes += {&box, saved.isEmpty() ? box.isChecked() : saved == BooleanText(true)};
    });
    if (std::any_of(boxes.begin(), boxes.end(), [](const auto& box) { return box.second; }))
        for (const auto& [box, checked] : boxes)
            box->setChecked(checked);
}

void RestoreChoices(const QDialog& dialog) {
    ForEach<QComboBox>(dialog, [](QComboBox& box, const QString& key) {
        if (const int place = box.findText(Saved(key), Qt::MatchExactly | Qt::MatchCaseSensitive);
            place >= 0)
            box.setCurrentIndex(place);
    });
    RestoreCheckBoxes(dialog);
    ForEach<CheckList>(dialog, [](CheckList& list, const QString& key) {
        list.Uncheck(Saved(key).split(Between));
    });
    ForEach<DateTimeRange>(
        dialog, [](DateTimeRange& range, const QString& key) { range.FromText(Saved(key)); });
    ForEach<QAbstractItemView>(dialog, [](QAbstractItemView& list, const QString& key) {
        if (!IsListOfRows(list))
            return;
        const QString saved = Saved(key);
        for (int row = 0; row < list.model()->rowCount(); ++row)
            if (const QModelIndex index = list.model()->index(row, 0);
                !saved.isEmpty() && index.data().toString() == saved)
                list.setCurrentIndex(index);
    });
}

} // namespace

void RememberChoices(QDialog& dialog, QPushButton& preview) {
    RestoreChoices(dialog);
    QObject::connect(&preview, &QPushButton::clicked, &dialog, [&dialog] { SaveChoices(dialog); });
}
