#pragma once

#include "pages/FormPage.h"

namespace Ui {
class tryConnectApp;
}

/// The page of the four-digit number that the owner types into the phone. GUI thread.
///
/// One click on its back button sends signal_backDefaultPage() twice; receivers bear it.
class tryConnectApp : public FormPage<Ui::tryConnectApp>
{
    Q_OBJECT

public:
    explicit tryConnectApp(QWidget *parent = nullptr);

    /// Draws the number anew and shows it: four digits of 0 to 9, each on its own, from the C
    /// library's generator seeded with the current second.
    void generate_random_number();

    /// Shows the result page, for the moment the phone confirms the number; nothing calls it yet.
    void check_connect_result();
};
