#pragma once

#include "pages/FormPage.h"

namespace Ui {
class connectResult;
}

/// The result of pairing or unpairing. No pairing runs yet, so it shows its panel only, and there
/// is no way back from it. GUI thread.
class connectResult : public FormPage<Ui::connectResult>
{
    Q_OBJECT

public:
    explicit connectResult(QWidget *parent = nullptr);

    /// Does nothing: made for the choice between the three results.
    void show_success_fail();
};
