// The material test card: a grid of small squares, one layer per square, the
// power changing from row to row and the speed from column to column, with
// the power values beside the rows and the speed values above the columns as
// text outlines on a low-power label layer, and a frame around it on a layer
// of its own. Layer numbers run 0..29 only, so a card with more squares than
// fit is cut into blocks of whole rows and columns, one page per block.
// Needs a QGuiApplication (text outlines). GUI thread only.
#pragma once

#include "tu_ceng.h"

#include <QList>

class Jk_tu_yuan;

namespace lumitra {

struct TestCardSettings
{
    int powerFrom = 10;  // percent, first row
    int powerTo = 100;   // percent, last row
    int speedFrom = 500; // mm/min, first column
    int speedTo = 5000;  // mm/min, last column
    int rows = 5;
    int columns = 5;
    double cellMm = 5;    // side of one square
    double spacingMm = 2; // gap between squares
    int mode = FillMode;  // LineMode or FillMode
    int passes = 1;
    double intervalMm = 0.1; // fill line spacing
    int labelPower = 10;     // label and frame layers
    int labelSpeed = 3000;
};

// Squares per page: every layer but the label and frame layers.
constexpr int kCardLabelLayer = kLayerCount - 2;
constexpr int kCardFrameLayer = kLayerCount - 1;
constexpr int kCardCellsPerPage = kLayerCount - 2;

// Empty when the settings can be generated, else why not (translated).
QString testCardProblem(const TestCardSettings &settings);

// The power of a row and the speed of a column, evenly spaced from the first
// to the last value and rounded to whole numbers.
int testCardPower(const TestCardSettings &settings, int row);
int testCardSpeed(const TestCardSettings &settings, int column);

// How the card is cut: squares per block in each direction and block count.
struct TestCardSplit
{
    int rowsPerPage = 0;
    int columnsPerPage = 0;
    int pages = 0;
};
TestCardSplit testCardSplit(const TestCardSettings &settings);

struct TestCardCell
{
    int row = 0;    // in the whole card
    int column = 0; // in the whole card
    int layer = 0;  // layer number on its page
    int power = 0;
    int speed = 0;
};

// One page of the card. The caller owns the items (not in any scene).
struct TestCardPage
{
    QList<Jk_tu_yuan *> items;
    QList<TuCeng> layers; // every layer the page's items use
    QList<TestCardCell> cells;
};

// The pages of the card, laid out from the work area's top-left corner
// (10 mm in). Empty when testCardProblem() is not empty.
QList<TestCardPage> generateTestCard(const TestCardSettings &settings);

// The layer record that burned one square (name "P<power> F<speed>").
TuCeng testCardCellLayer(const TestCardSettings &settings, int row, int column, int layerNumber);

} // namespace lumitra
