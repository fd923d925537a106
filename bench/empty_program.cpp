// A program with Qt Core and nothing to do: what any program with it takes to start and end.
#include <QtCore/QtGlobal>

int main() { return qVersion() == nullptr ? 1 : 0; }
