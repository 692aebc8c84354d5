tr("start of file"); attr(1); a->tr(2); 9tr(3); _tr(4);
