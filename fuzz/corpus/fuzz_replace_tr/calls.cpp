void f() { setText(tr("Open")); x = tr ( "A" ); }
