#pragma once
#include <QTabWidget>

// The tab widget of parameter pages. Every page sits in a scroll area, so a
// small window scrolls a page instead of squeezing its rows together.
class ParameterTabs : public QTabWidget {
    Q_OBJECT
public:
    explicit ParameterTabs(QWidget* parent = nullptr);

    // Inserts `page` at `index` (appends when out of range); returns its index.
    int insertPage(int index, QWidget* page, const QString& title);
    int addPage(QWidget* page, const QString& title) { return insertPage(count(), page, title); }
    // The page itself (not its scroll area) at `index`, or null.
    QWidget* pageAt(int index) const;
};
