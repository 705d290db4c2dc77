#pragma once

#include <QLineEdit>

// Marks a box whose text won't do: the box turns reddish, and its tooltip says why.
class WarningMark : public QObject {
    Q_OBJECT
public:
    // Belongs to the box.
    explicit WarningMark(QLineEdit* box);

    // An empty warning takes the mark away.
    void show(const QString& warning);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void colour();

    QLineEdit* box_;
    QString warning_;
    QString ownTip_; // what the tooltip says without a mark
};
