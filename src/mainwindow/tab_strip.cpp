#include "mainwindow/tab_strip.h"

#include "controls/page_scroll.h"
#include "mainwindow/catalogue_lists.h"
#include "mainwindow/form_views.h"
#include "settings/general_settings.h"

#include <QDate>
#include <QKeyEvent>
#include <QLineEdit>
#include <QProxyStyle>
#include <QTabBar>

namespace {

// Less room beside the captions, so that all eight stand side by side on a small screen.
class NarrowTabs : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        return metric == PM_TabBarTabHSpace ? 12 : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace

TabStrip::TabStrip(FormTabs& tabs, const FormContext& context) : tabs_(tabs), context_(context) {
    setObjectName(QStringLiteral("SSTab1"));
    auto* narrow = new NarrowTabs;
    narrow->setParent(this);
    tabBar()->setStyle(narrow);
    for (const TabRow& row : tabRows) {
        BoundView* view = row.make(tabs, context);
        if (auto* form = qobject_cast<FormView*>(view)) form->page()->setObjectName(QLatin1String(row.page));
        views_.push_back(view);
        addTab(new PageScroll(view), QString::fromUtf16(row.caption));
    }
    yellowCheck_ = findChild<YellowCheckView*>();
    envelope_ = findChild<EnvelopeView*>();
    labels_ = findChild<LabelView*>();
    yellowCheck_->searchBox()->installEventFilter(this);
    connect(yellowCheck_, &YellowCheckView::searchWanted, this, &TabStrip::searchWanted);
    connect(envelope_, &EnvelopeView::browserClosed, this, &TabStrip::dialogClosed);
    connect(labels_, &LabelView::clientWanted, this, &TabStrip::clientWanted);
    connect(this, &QTabWidget::currentChanged, this, &TabStrip::store);
    connect(tabBar(), &QTabBar::tabBarClicked, this, [this](int clicked) {
        if (clicked == currentIndex()) store(); // a click on the tab in view reloads it
    });
}

void TabStrip::restore(int stored) {
    const int tab = stored >= 0 && stored < count() ? stored : 0;
    if (tab == currentIndex()) return store();
    setCurrentIndex(tab);
}

void TabStrip::store() {
    const auto number = static_cast<std::int16_t>(currentIndex());
    const bool stored = updateField(context_.folder, &Set::SSTab1Tab, I16(number));
    // Nothing to stop a clerk for: the next start shows another tab.
    if (!stored)
        Q_EMIT said(QStringLiteral("A program mappája vagy a Set.dat nem írható, a beállítások nem maradnak meg."));
    reload();
}

void TabStrip::reload() {
    if (row().reload != nullptr) row().reload(tabs_, context_);
    Q_EMIT shown(row());
    views_[static_cast<std::size_t>(currentIndex())]->showValues();
}

QByteArray TabStrip::shownRecord() const {
    return row().shownRecord != nullptr ? row().shownRecord(context_.folder) : QByteArray();
}

void TabStrip::showValues() {
    for (BoundView* view : views_)
        view->showValues();
}

void TabStrip::offerFonts(const QStringList& fonts) { labels_->offerFonts(fonts); }

void TabStrip::activate() {
    YellowCheckTab& check = tabs_.yellowCheck;
    for (QString* text : {&check.Kozlemeny1, &check.txtJogcim1, &check.txtJogcim2})
        text->clear();
    const ProgramFolder& folder = context_.folder;
    yellowCheck_->offerCatalogues(
        {titleList(folder), secondTitleList(folder, QDate::currentDate()), noticeList(folder)});
    fitPicture(tabs_.envelope);
    envelope_->showValues();
}

void TabStrip::focusAmount() {
    if (row().amountBox != nullptr) findChild<QWidget*>(QLatin1String(row().amountBox))->setFocus();
}

void TabStrip::startSearch() {
    setCurrentIndex(static_cast<int>(Tab::yellowCheck));
    tabs_.yellowCheck.Check1 = true;
    yellowCheck_->showValues();
    yellowCheck_->searchBox()->setFocus();
    yellowCheck_->searchBox()->selectAll();
}

bool TabStrip::eventFilter(QObject* object, QEvent* event) {
    const bool down = event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down;
    if (down && tabs_.yellowCheck.Check1) Q_EMIT listWanted();
    return QTabWidget::eventFilter(object, event);
}
