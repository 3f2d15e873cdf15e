#pragma once

// The chart's date-and-time serial number for an automation date (days since 1899-12-30, the
// time as the fraction), made through the chart's own encoding of broken-down fields.

double ChartSerialOfAutomationDate(double date);
