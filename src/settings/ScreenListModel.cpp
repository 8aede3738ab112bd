#include "ScreenListModel.h"

#include "ScreensBackend.h"
#include "XrandrParser.h"

#include <algorithm>

ScreenListModel::ScreenListModel(QObject* parent)
    : ScreenListModel(nullptr, parent)
{
}

ScreenListModel::ScreenListModel(ScreensBackend* backend, QObject* parent)
    : QAbstractListModel(parent)
    , m_backend(backend)
{
    refresh();
    connect(this->backend(), &ScreensBackend::screensChanged, this, &ScreenListModel::refresh);
}

ScreensBackend* ScreenListModel::backend() const
{
    return m_backend ? m_backend : ScreensBackend::getInstance();
}

int ScreenListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_names.size();
}

QVariant ScreenListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const int row = index.row();
    const QString& name = m_names.at(row);
    switch (role) {
    case TableDataRole: {
        const ScreensBackend* screens = backend();
        return QVariantMap{{QStringLiteral("name"), name},
                           {QStringLiteral("displayName"), m_displayNames.at(row)},
                           {QStringLiteral("resolution"), screens->getCurrentResolution(name)},
                           {QStringLiteral("rate"), screens->getCurrentRate(name)},
                           {QStringLiteral("orientation"), screens->getOrientation(name)}};
    }
    case NameRole:
        return name;
    case Qt::DisplayRole:
    case DisplayRole:
        return m_displayNames.at(row);
    case ActiveRole:
        return name == m_active;
    case PrimaryRole:
        return name == m_primary;
    case GridRole:
        return m_gridList.at(row);
    default:
        return {};
    }
}

QHash<int, QByteArray> ScreenListModel::roleNames() const
{
    return {{TableDataRole, "tableData"}, {NameRole, "name"},       {DisplayRole, "displayName"},
            {ActiveRole, "active"},       {PrimaryRole, "primary"}, {GridRole, "grid"}};
}

void ScreenListModel::refresh()
{
    const ScreensBackend* screens = backend();
    const int oldCount = m_names.size();
    beginResetModel();
    m_names = screens->arrangement();
    m_displayNames.clear();
    for (int i = 0; i < m_names.size(); ++i)
        m_displayNames << tr("Display %1").arg(i + 1);
    m_primary = screens->getPrimaryScreen();
    m_gridList = computeGrid();
    const QString oldActive = m_active;
    if (!m_names.contains(m_active))
        m_active = m_names.contains(m_primary) ? m_primary : m_names.value(0);
    endResetModel();
    if (oldCount != m_names.size())
        emit countChanged();
    if (oldActive != m_active)
        emit activeChanged();
}

void ScreenListModel::setActive(const QString& name)
{
    if (name == m_active || !m_names.contains(name))
        return;
    const int before = m_names.indexOf(m_active);
    m_active = name;
    const int after = m_names.indexOf(name);
    if (before >= 0)
        emit dataChanged(index(before), index(before), {ActiveRole});
    emit dataChanged(index(after), index(after), {ActiveRole});
    emit activeChanged();
}

void ScreenListModel::move(int from, int to)
{
    if (from < 0 || to < 0 || from >= m_names.size() || to >= m_names.size() || from == to)
        return;
    backend()->swap(from, to); // emits screensChanged, which refreshes the rows
}

QList<QVariantMap> ScreenListModel::computeGrid() const
{
    // Monitors side by side in arrangement order, each as wide as its (turned) resolution; the
    // view scales the box to its own size. In mirror mode they would overlap, so they are shown
    // side by side all the same.
    const ScreensBackend* screens = backend();
    QList<QSize> sizes;
    int totalWidth = 0;
    int maxHeight = 0;
    for (const QString& name : m_names) {
        QSize size = screens->getGeometry(name).size();
        if (size.isEmpty())
            size = QSize(1920, 1080); // no active mode: a placeholder of a common size
        sizes << size;
        totalWidth += size.width();
        maxHeight = std::max(maxHeight, size.height());
    }
    QList<QVariantMap> grid;
    int x = 0;
    for (const QSize& size : qAsConst(sizes)) {
        grid << QVariantMap{{QStringLiteral("x"), double(x) / totalWidth},
                            {QStringLiteral("y"), 0.0},
                            {QStringLiteral("width"), double(size.width()) / totalWidth},
                            {QStringLiteral("height"), double(size.height()) / maxHeight},
                            {QStringLiteral("aspect"), double(totalWidth) / maxHeight}};
        x += size.width();
    }
    return grid;
}
