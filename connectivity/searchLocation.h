#pragma once

#include "pages/FormPage.h"

namespace Ui {
class searchLocation;
}

/// Types the name of a place on the on-screen keyboard; its done key opens the list of results.
/// The typed text is not searched for. GUI thread.
class searchLocation : public FormPage<Ui::searchLocation>
{
    Q_OBJECT

public:
    explicit searchLocation(QWidget *parent = nullptr);

signals:
    /// Never emitted; for the search that will take the typed text.
    void signal_commit(const QString &strLocation);

public slots:
    void jump_searchResult_page();
    void delete_searchLocation();
};
