#include "cells/GridColorCell.h"

IMPLEMENT_DYNCREATE(CGridColorCell, CGridCell)
