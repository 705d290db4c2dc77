#pragma once

#include "controls/dialog.h"
#include "prompts/prompts.h"
#include "records/program_folder.h"

#include <QTimer>

class FolderChooser;
class QCheckBox;
class QLabel;
class QLineEdit;
class QListView;
class QRadioButton;
class QStringListModel;

// "Kép keresés": a picture file picked from drives, folders and files, with a preview. It opens on the folder that it
// showed last. Show it with exec(); any answer but Accepted means that nothing was picked.
class kep_browse : public Dialog {
    Q_OBJECT
public:
    kep_browse(const ProgramFolder& folder, Prompts& prompts, QWidget* parent = nullptr);

    // Full path of the file that was clicked last; empty while there was none.
    const QString& kepFajl() const { return kepFajl_; }

    // Keeps the folder for the next time, whatever the answer.
    void done(int answer) override;

private:
    void build();
    QLayout* buildFiles();
    QLayout* buildPreview();
    void connectParts();
    void openLastFolder();

    QStringList currentPattern() const;
    void listFiles(const QStringList& patterns);
    void refreshFiles();
    void selectFirst();
    void Dir1_Change();
    void Command1_Click();
    void Text1_Change(const QString& text);
    void File1_Click(const QString& name);
    void showFile();
    bool KepBetoltes2();
    void HibaUzenet(const QString& root);

    const ProgramFolder& folder_;
    Prompts& prompts_;
    QString kepFajl_;
    QTimer soon_; // shows the file that is still the clicked one when the keys and clicks that wait are through
    QLineEdit* Label1_;
    FolderChooser* folders_;
    QPushButton* Command1_;
    QListView* File1_;
    QStringListModel* files_;
    QLineEdit* Text1_;
    QRadioButton* allFiles_; // Option1, index 0
    QRadioButton* pictures_; // Option1, index 1
    QCheckBox* Check1_;
    QLabel* Image1_;
    QPushButton* Command2_;
    QPushButton* Command3_;
};
