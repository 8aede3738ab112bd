#include "KeyboardsLayoutModel.h"

#include "InputParsers.h"
#include "LanguageBackend.h"
#include "MouseSettingsBackend.h"

#include <QDebug>

KeyboardsLayoutModel::KeyboardsLayoutModel(QObject* parent)
    : QAbstractListModel(parent)
{
    connect(LanguageBackend::getInstance(), &LanguageBackend::layoutsReady, this, &KeyboardsLayoutModel::updateData);
    if (LanguageBackend::getInstance()->isLayoutCatalogueReady())
        updateData();
}

int KeyboardsLayoutModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_internalNames.size();
}

QVariant KeyboardsLayoutModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const QString code = m_internalNames.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return m_displayNames.value(index.row(), code);
    case CodeRole:
        return code;
    case CheckedRole:
        return m_enabled.contains(code) || m_selectedNames.contains(code);
    case EnabledRole:
        return !m_enabled.contains(code); // already enabled layouts cannot be added again
    default:
        return {};
    }
}

QHash<int, QByteArray> KeyboardsLayoutModel::roleNames() const
{
    return {{NameRole, "name"}, {CodeRole, "code"}, {CheckedRole, "checked"}, {EnabledRole, "selectable"}};
}

void KeyboardsLayoutModel::setCatalogue(const QStringList& internalNames, const QStringList& displayNames)
{
    beginResetModel();
    m_internalNames = internalNames;
    m_displayNames = displayNames;
    m_enabled = MouseSettingsBackend::listLayoutsEnabled();
    m_selectedNames.clear();
    endResetModel();
    emit checkedCountChanged();
    if (m_loading) {
        m_loading = false;
        emit loadingChanged();
    }
}

void KeyboardsLayoutModel::updateData()
{
    LanguageBackend* catalogue = LanguageBackend::getInstance();
    setCatalogue(catalogue->listLocalesInternal(), catalogue->listLocalesDisplay());
}

void KeyboardsLayoutModel::setChecked(int row, bool checked)
{
    if (row < 0 || row >= m_internalNames.size())
        return;
    const QString code = m_internalNames.at(row);
    if (m_enabled.contains(code))
        return;
    const bool changed = checked ? !m_selectedNames.contains(code) : m_selectedNames.remove(code);
    if (!changed)
        return;
    if (checked)
        m_selectedNames.insert(code);
    emit dataChanged(index(row), index(row), {CheckedRole});
    emit checkedCountChanged();
}

void KeyboardsLayoutModel::addRowChecked(int row)
{
    setChecked(row, true);
}

void KeyboardsLayoutModel::removeRowChecked(int row)
{
    setChecked(row, false);
}

void KeyboardsLayoutModel::clearRowChecked()
{
    if (m_selectedNames.isEmpty())
        return;
    m_selectedNames.clear();
    if (!m_internalNames.isEmpty())
        emit dataChanged(index(0), index(m_internalNames.size() - 1), {CheckedRole});
    emit checkedCountChanged();
}

void KeyboardsLayoutModel::apply()
{
    // Catalogue order, so the same choice always gives the same list.
    QStringList added;
    for (const QString& code : m_internalNames) {
        if (m_selectedNames.contains(code))
            added << code;
    }
    const QStringList layouts = InputParsers::appendLayouts(MouseSettingsBackend::listLayoutsEnabled(), added);
    qInfo() << "Adding keyboard layouts" << added;
    MouseSettingsBackend::setLayouts(layouts);
    if (MouseSettingsBackend::getPreferredLayoutRaw().isEmpty() && !layouts.isEmpty())
        MouseSettingsBackend::setPreferredLayoutRaw(layouts.first());
    MouseSettingsBackend::applyLayouts(InputParsers::orderLayouts(layouts, MouseSettingsBackend::getPreferredLayoutRaw()));
    beginResetModel();
    m_enabled = MouseSettingsBackend::listLayoutsEnabled();
    m_selectedNames.clear();
    endResetModel();
    emit checkedCountChanged();
    emit applied();
}
