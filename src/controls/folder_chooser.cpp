#include "controls/folder_chooser.h"

#include "controls/entry_combo.h"
#include "controls/named.h"

#include <QDir>
#include <QKeyEvent>
#include <QStorageInfo>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int pathRole = Qt::UserRole;

// Nothing folds here, so there are no marks for it.
class FolderTree : public QTreeWidget {
protected:
    void drawBranches(QPainter* /*painter*/, const QRect& /*rect*/, const QModelIndex& /*index*/) const override {}
};

QStringList drives() {
    QStringList roots;
#ifdef Q_OS_WIN
    for (const QFileInfo& drive : QDir::drives())
        roots << drive.absoluteFilePath();
#else
    roots << QDir::rootPath();
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) // without the pseudo ones
        if (volume.isReady() && QFileInfo(volume.rootPath()).isDir()) roots << volume.rootPath();
    roots.removeDuplicates();
#endif
    return roots;
}

QString parentOf(const QString& folder) { return QFileInfo(folder).path(); }

bool isTop(const QString& folder) { return QDir(folder).isRoot() || parentOf(folder) == folder; }

QString nearestFolder(const QString& path) {
    QString folder = QDir::cleanPath(QDir::fromNativeSeparators(path));
    if (!QDir::isAbsolutePath(folder)) return QDir::homePath();
    while (!QFileInfo(folder).isDir()) {
        if (isTop(folder)) return QDir::homePath();
        folder = parentOf(folder);
    }
    return folder;
}

// From the top down to the folder itself.
QStringList chainOf(QString folder) {
    QStringList chain{folder};
    while (!isTop(folder)) {
        folder = parentOf(folder);
        chain.prepend(folder);
    }
    return chain;
}

bool lieIn(const QString& folder, const QString& root) {
    return folder == root || folder.startsWith(root.endsWith(u'/') ? root : root + u'/');
}

QTreeWidgetItem* folderItem(const QString& path, const QString& text, const QIcon& icon) {
    auto* item = new QTreeWidgetItem({text});
    item->setIcon(0, icon);
    item->setData(0, pathRole, path);
    return item;
}

QList<QTreeWidgetItem*> subfolderItems(const QString& folder, const QIcon& icon) {
    QList<QTreeWidgetItem*> items;
    const QDir dir(folder);
    for (const QString& name : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase))
        items << folderItem(dir.filePath(name), name, icon);
    return items;
}

} // namespace

FolderChooser::FolderChooser(QWidget* parent)
    : QWidget(parent)
    , Drive1_(named(new SteadyCombo, "Drive1"))
    , Dir1_(named(new FolderTree, "Dir1")) {
    Drive1_->setAccessibleName(QStringLiteral("Meghajtó"));
    for (const QString& root : drives())
        Drive1_->addItem(QDir::toNativeSeparators(root), root);
    Dir1_->setAccessibleName(QStringLiteral("Mappa"));
    Dir1_->setHeaderHidden(true);
    Dir1_->setRootIsDecorated(false);
    Dir1_->setItemsExpandable(false);
    Dir1_->setIndentation(12);
    Dir1_->setExpandsOnDoubleClick(false);
    Dir1_->setUniformRowHeights(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(Drive1_);
    layout->addWidget(Dir1_, 1);
    setFocusProxy(Dir1_);
    connect(Drive1_, &QComboBox::activated, this, &FolderChooser::openDrive);
    // Queued: the list is filled anew, and the event that opens it still works on the old row.
    connect(
        Dir1_, &QTreeWidget::itemActivated, this,
        [this](const QTreeWidgetItem* item) { openByUser(item->data(0, pathRole).toString()); }, Qt::QueuedConnection);
    setPath({});
}

void FolderChooser::setPath(const QString& path) { fill(nearestFolder(path)); }

QString FolderChooser::path() const { return QDir::toNativeSeparators(path_); }

// ENTER has opened a folder; it must not press the default button of the dialog as well.
void FolderChooser::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter) QWidget::keyPressEvent(event);
}

QString FolderChooser::drive() const { return Drive1_->currentText(); }

void FolderChooser::openDrive(int index) {
    const QString root = Drive1_->itemData(index).toString();
    const bool opened = openByUser(root);
    showDrive(); // where the drive isn't ready, the box goes back
    if (!opened) Q_EMIT driveFailed(QDir::toNativeSeparators(root));
}

bool FolderChooser::openByUser(const QString& folder) {
    if (!QFileInfo(folder).isDir() || !QDir(folder).isReadable()) return false;
    fill(folder);
    Q_EMIT pathChanged(path());
    return true;
}

void FolderChooser::fill(const QString& folder) {
    path_ = folder;
    const QIcon opened = style()->standardIcon(QStyle::SP_DirOpenIcon);
    Dir1_->clear();
    QTreeWidgetItem* parent = Dir1_->invisibleRootItem();
    for (const QString& above : chainOf(folder)) {
        const QString name = QFileInfo(above).fileName();
        auto* item = folderItem(above, isTop(above) || name.isEmpty() ? QDir::toNativeSeparators(above) : name, opened);
        parent->addChild(item);
        parent = item;
    }
    parent->addChildren(subfolderItems(folder, style()->standardIcon(QStyle::SP_DirIcon)));
    Dir1_->expandAll();
    Dir1_->setCurrentItem(parent);
    showDrive();
}

void FolderChooser::showDrive() {
    int nearest = -1; // a folder of the network lies on no drive
    for (int i = 0; i < Drive1_->count(); ++i) {
        const QString root = Drive1_->itemData(i).toString();
        const bool isNearer = nearest < 0 || root.size() > Drive1_->itemData(nearest).toString().size();
        if (lieIn(path_, root) && isNearer) nearest = i;
    }
    Drive1_->setCurrentIndex(nearest);
}
