#pragma once
// The drive, directory and file lists of the toolkit. On Linux a "drive" is
// a mounted volume (the root, the home folder's volume, removable media).
// Paths shown and returned use '/' and carry no trailing '/' except the root.
#include <QComboBox>
#include <QListWidget>

#include "screens/platform/ListBox.h"

class DriveListBox : public QComboBox {
    Q_OBJECT
public:
    explicit DriveListBox(QWidget* parent = nullptr);
    QString Drive() const;
    // Selects the volume holding the path. Raises error 68 "Device
    // unavailable" when that volume cannot be read.
    void setDrive(const QString& path);
    void Refresh();
signals:
    void Change();
};

class DirListBox : public QListWidget {
    Q_OBJECT
public:
    explicit DirListBox(QWidget* parent = nullptr);
    QString Path() const { return path_; }
    // Shows the folder: its ancestors from the root, itself, then its
    // subfolders. Raises error 76 "Path not found" for a folder that is not there.
    void setPath(const QString& path);
    // The folder of the highlighted row ("" when none).
    QString HighlightedPath() const;
signals:
    void Change();

protected:
    void keyPressEvent(QKeyEvent* e) override;

private:
    QString path_;
};

// A list box of the files in one folder that match the patterns; its Click
// and DblClick are those of every list box.
class FileListBox : public ListBox {
    Q_OBJECT
public:
    explicit FileListBox(QWidget* parent = nullptr) : ListBox(parent) {}
    QString Path() const { return path_; }
    void setPath(const QString& path);
    QString Pattern() const { return pattern_; }
    // Patterns separated by ';' ("*.bmp;*.jpg;*.gif").
    void setPattern(const QString& pattern);
    void Refresh();
    // The selected file's name, "" when none.
    QString FileName() const { return Text(); }
signals:
    void PathChange();

private:
    QString path_;
    QString pattern_ = QStringLiteral("*.*");
};
