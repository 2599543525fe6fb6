#include "App/KeyCodes.h"

#include <QHash>

namespace fendrel {

using namespace Qt::StringLiterals;

int keyCode(const QString& label) {
    static const QHash<QString, int> codes{
        {u"A"_s, 0},        {u"S"_s, 1},      {u"D"_s, 2},       {u"F"_s, 3},      {u"H"_s, 4},
        {u"G"_s, 5},        {u"Z"_s, 6},      {u"X"_s, 7},       {u"C"_s, 8},      {u"V"_s, 9},
        {u"B"_s, 11},       {u"Q"_s, 12},     {u"W"_s, 13},      {u"E"_s, 14},     {u"R"_s, 15},
        {u"Y"_s, 16},       {u"T"_s, 17},     {u"1"_s, 18},      {u"2"_s, 19},     {u"3"_s, 20},
        {u"4"_s, 21},       {u"6"_s, 22},     {u"5"_s, 23},      {u"="_s, 24},     {u"9"_s, 25},
        {u"7"_s, 26},       {u"-"_s, 27},     {u"8"_s, 28},      {u"0"_s, 29},     {u"]"_s, 30},
        {u"O"_s, 31},       {u"U"_s, 32},     {u"["_s, 33},      {u"I"_s, 34},     {u"P"_s, 35},
        {u"RETURN"_s, 36},  {u"L"_s, 37},     {u"J"_s, 38},      {u"'"_s, 39},     {u"K"_s, 40},
        {u";"_s, 41},       {u"\\"_s, 42},    {u","_s, 43},      {u"/"_s, 44},     {u"N"_s, 45},
        {u"M"_s, 46},       {u"."_s, 47},     {u"TAB"_s, 48},    {u"SPACE"_s, 49}, {u"`"_s, 50},
        {u"F5"_s, 96},      {u"F6"_s, 97},    {u"F7"_s, 98},     {u"F3"_s, 99},    {u"F8"_s, 100},
        {u"F9"_s, 101},     {u"F11"_s, 103},  {u"F13"_s, 105},   {u"F16"_s, 106},  {u"F14"_s, 107},
        {u"F10"_s, 109},    {u"F12"_s, 111},  {u"F15"_s, 113},   {u"HOME"_s, 115}, {u"PAGE UP"_s, 116},
        {u"DELETE"_s, 117}, {u"F4"_s, 118},   {u"END"_s, 119},   {u"F2"_s, 120},   {u"PAGE DOWN"_s, 121},
        {u"F1"_s, 122},     {u"LEFT"_s, 123}, {u"RIGHT"_s, 124}, {u"DOWN"_s, 125}, {u"UP"_s, 126}};
    return codes.value(label.toUpper(), -1);
}

} // namespace fendrel
