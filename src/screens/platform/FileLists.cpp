#include "screens/platform/FileLists.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QStorageInfo>

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"

namespace {

QString CleanFolder(const QString& path) {
    QString p = QDir::cleanPath(NativePath(path));
    if (p.isEmpty()) p = QStringLiteral("/");
    return p;
}

QStringList Volumes() {
    QStringList roots{QStringLiteral("/")};
    for (const QStorageInfo& v : QStorageInfo::mountedVolumes()) {
        const QString root = v.rootPath();
        if (!v.isValid() || !v.isReady() || root.startsWith(QLatin1String("/proc")) ||
            root.startsWith(QLatin1String("/sys")) || root.startsWith(QLatin1String("/dev")) ||
            root.startsWith(QLatin1String("/run")) || root.startsWith(QLatin1String("/snap")))
            continue;
        if (!roots.contains(root)) roots.append(root);
    }
    roots.sort();
    return roots;
}

QString VolumeOf(const QString& path, const QStringList& volumes) {
    QString best = QStringLiteral("/");
    for (const QString& v : volumes)
        if ((path == v || path.startsWith(v + QLatin1Char('/'))) && v.size() > best.size()) best = v;
    return best;
}

}  // namespace

DriveListBox::DriveListBox(QWidget* parent) : QComboBox(parent) {
    Refresh();
    connect(this, &QComboBox::activated, this, [this] { emit Change(); });
}

void DriveListBox::Refresh() {
    const QString keep = Drive();
    blockSignals(true);
    clear();
    addItems(Volumes());
    const int i = findText(keep);
    setCurrentIndex(i >= 0 ? i : 0);
    blockSignals(false);
}

QString DriveListBox::Drive() const { return currentText(); }

void DriveListBox::setDrive(const QString& path) {
    const QString volume = VolumeOf(CleanFolder(path), Volumes());
    if (!QFileInfo(volume).isReadable()) RaiseError(68, QCoreApplication::translate("Errors", "Device unavailable"));
    int i = findText(volume);
    if (i < 0) {
        addItem(volume);
        i = count() - 1;
    }
    if (i != currentIndex()) {
        setCurrentIndex(i);
        emit Change();
    }
}

DirListBox::DirListBox(QWidget* parent) : QListWidget(parent) {
    connect(this, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { setPath(item->data(Qt::UserRole).toString()); });
}

void DirListBox::setPath(const QString& path) {
    const QString folder = CleanFolder(path);
    if (!QFileInfo(folder).isDir()) RaiseError(errPathNotFound);
    const bool changed = folder != path_;
    path_ = folder;
    clear();
    // Ancestors from the root, each one level deeper, then the folder itself.
    QStringList chain;
    for (QDir d(folder);;) {
        chain.prepend(d.absolutePath());
        if (d.isRoot() || !d.cdUp()) break;
    }
    int depth = 0;
    for (const QString& p : chain) {
        auto* item = new QListWidgetItem(QString(depth * 2, QLatin1Char(' ')) +
                                         (p == QLatin1String("/") ? p : QFileInfo(p).fileName()));
        item->setData(Qt::UserRole, p);
        addItem(item);
        ++depth;
    }
    setCurrentRow(count() - 1);
    for (const QString& sub : SubDirs(folder)) {
        const QString p = folder == QLatin1String("/") ? folder + sub : folder + QLatin1Char('/') + sub;
        auto* item = new QListWidgetItem(QString(depth * 2, QLatin1Char(' ')) + sub);
        item->setData(Qt::UserRole, p);
        addItem(item);
    }
    if (changed) emit Change();
}

QString DirListBox::HighlightedPath() const {
    const QListWidgetItem* item = currentItem();
    return item ? item->data(Qt::UserRole).toString() : QString();
}

void DirListBox::keyPressEvent(QKeyEvent* e) {
    if ((e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) && currentItem()) {
        setPath(HighlightedPath());
        return;
    }
    QListWidget::keyPressEvent(e);
}

void FileListBox::setPath(const QString& path) {
    const QString folder = CleanFolder(path);
    const bool changed = folder != path_;
    path_ = folder;
    Refresh();
    if (changed) emit PathChange();
}

void FileListBox::setPattern(const QString& pattern) {
    pattern_ = pattern;
    Refresh();
}

void FileListBox::Refresh() {
    Clear();
    if (path_.isEmpty()) return;
    QStringList names;
    const QString base = path_.endsWith(QLatin1Char('/')) ? path_ : path_ + QLatin1Char('/');
    for (const QString& p : pattern_.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        for (const QString& name : Dir(base + p.trimmed()))
            if (!names.contains(name)) names.append(name);
    names.sort(Qt::CaseInsensitive);
    for (const QString& name : names) AddItem(name);
    setListIndex(-1);
}
