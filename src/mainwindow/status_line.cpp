#include "mainwindow/status_line.h"

#include "controls/named.h"

#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent)
    , message_(new QLabel)
    , bar_(new QProgressBar)
    , cancel_(new QPushButton(u"Mégse"_s))
    , count_(new QLabel)
    , watch_(new QLabel) {
    message_->setObjectName(u"lbAllapot"_s);
    message_->setTextFormat(Qt::RichText);
    message_->setMargin(2);
    // A long path must not widen the window.
    message_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bar_->setObjectName(u"pbHaladas"_s);
    bar_->setMaximumWidth(220);
    cancel_->setObjectName(u"cmdMegse"_s);
    cancel_->setToolTip(u"A munka megszakítása (Esc)"_s);
    cancel_->setFocusPolicy(Qt::NoFocus);
    count_->setObjectName(u"lbUgyfelekSzama"_s);
    watch_->setObjectName(u"lbFigyelo"_s);
    watch_->setTextFormat(Qt::PlainText);
    watch_->setIndent(12);
    addPermanentWidget(message_, 1);
    for (QWidget* widget : std::initializer_list<QWidget*>{bar_, cancel_, count_, watch_})
        addPermanentWidget(widget);
    hideProgress();
    watch_->hide();

    connect(message_, &QLabel::linkActivated, this, &StatusLine::fileWanted);
    connect(cancel_, &QPushButton::clicked, this, &StatusLine::cancelPressed);
    connect(this, &QStatusBar::messageChanged, this, [this](const QString& text) {
        const QString path = file_.toHtmlEscaped();
        const QString link = u"<a href=\"%1\">%2</a>"_s.arg(path, QDir::toNativeSeparators(path));
        QString html = text.toHtmlEscaped();
        if (!path.isEmpty()) html.replace(path, link);
        message_->setText(html);
        message_->setToolTip(text.size() > 60 ? html : QString()); // a narrow window may cut it
    });
}

void StatusLine::say(const QString& text) { sayWithLink(text, {}); }

void StatusLine::sayWithLink(const QString& text, const QString& file) {
    file_ = file;
    showMessage(text);
}

void StatusLine::showClientCount(qint64 count) { count_->setText(u"%1 ügyfél"_s.arg(count)); }

void StatusLine::showWatch(const QString& folder, const QString& outcome) {
    const QFontMetrics metrics = watch_->fontMetrics();
    const int letter = metrics.averageCharWidth();
    // The end of a path says more than its beginning.
    const QString end = metrics.elidedText(folder, Qt::ElideLeft, 30 * letter);
    const QString text =
        outcome.isEmpty() ? QString() : u"  "_s + metrics.elidedText(outcome, Qt::ElideRight, 64 * letter);
    watch_->setText(u"Figyelt mappa: "_s + end + text);
    watch_->setToolTip(plainToolTip(folder + (outcome.isEmpty() ? QString() : u'\n' + outcome)));
    watch_->setVisible(!folder.isEmpty());
}

void StatusLine::showProgress(qint64 done, qint64 total, bool cancellable) {
    constexpr int steps = 1000;
    bar_->setMaximum(steps);
    bar_->setValue(total > 0 ? static_cast<int>(done * steps / total) : 0);
    bar_->show();
    cancel_->setVisible(cancellable);
}

void StatusLine::hideProgress() {
    bar_->hide();
    cancel_->hide();
}

void StatusLine::paintEvent(QPaintEvent* /*event*/) {}
