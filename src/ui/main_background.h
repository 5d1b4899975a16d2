#pragma once
// The main window's background picture, which the entry lists may show behind their
// rows (LISTVIEWSHOWBACK).

#include <QBrush>

namespace zvx {

QBrush MainBackground();

}  // namespace zvx
