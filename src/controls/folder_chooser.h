#pragma once

#include <QString>
#include <QWidget>

class QTreeWidget;
class SteadyCombo;

// A folder picked by mouse or keys, in two lists one above the other: the drives (`Drive1`), and the opened folder
// (`Dir1`) with the folders above it and below it. ENTER or a double click opens the folder under the cursor. Nothing
// here changes the current folder of the process. Paths have the separators of the platform.
class FolderChooser : public QWidget {
    Q_OBJECT
public:
    explicit FolderChooser(QWidget* parent = nullptr);

    // Opens a folder; where it isn't there, the nearest folder above it that is, and the user's own where there is none
    // or the path is empty. No signal.
    void setPath(const QString& path);
    // Of the opened folder: of setPath's text only if that is there.
    QString path() const;
    // Root of the drive that the opened folder lies on; empty for a folder of the network.
    QString drive() const;

Q_SIGNALS:
    // The user has opened another folder.
    void pathChanged(const QString& path);
    // The user wanted a drive that can't be opened.
    void driveFailed(const QString& root);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void openDrive(int index);
    // False for a folder that can't be read: the lists stay as they are.
    bool openByUser(const QString& folder);
    void fill(const QString& folder);
    void showDrive();

    SteadyCombo* Drive1_;
    QTreeWidget* Dir1_;
    QString path_; // absolute, with '/'
};
