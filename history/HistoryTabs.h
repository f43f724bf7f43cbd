#pragma once

#include <QTabWidget>

/// The tabs of the history page, all of one size: a bar that measured their texts would load fonts
/// while the page is hidden still.
class HistoryTabs : public QTabWidget
{
public:
    explicit HistoryTabs(QWidget *parent = nullptr);
};
