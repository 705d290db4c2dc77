#pragma once

#include <QStatusBar>

class QLabel;
class QProgressBar;
class QPushButton;

// The status line: at the left what the last action came to, in the middle the progress of a long one, at the right the
// number of clients in the database and, while there is one, the watched folder.
class StatusLine : public QStatusBar {
    Q_OBJECT
public:
    explicit StatusLine(QWidget* parent = nullptr);

    void say(const QString& text);
    // A text that holds the full path of `file`, which is a link there.
    void sayWithLink(const QString& text, const QString& file);
    void showClientCount(qint64 count);
    // The watched folder and what it came to last, cut to a part of the line; the tooltip has them whole. Nothing is on
    // view for an empty folder.
    void showWatch(const QString& folder, const QString& outcome);

    // A bar of `done` in `total`, with a "Mégse" beside it that takes clicks while `cancellable`.
    void showProgress(qint64 done, qint64 total, bool cancellable);
    void hideProgress();
    QPushButton* cancelButton() const { return cancel_; }

Q_SIGNALS:
    void fileWanted(const QString& path);
    void cancelPressed();

protected:
    // The message stands in a label of our own, where a path can be a link; the toolkit would paint it a second time.
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* message_;
    QProgressBar* bar_;
    QPushButton* cancel_;
    QLabel* count_;
    QLabel* watch_;
    QString file_;
};
