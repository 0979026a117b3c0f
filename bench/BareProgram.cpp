#include <QCoreApplication>

/// The base cost of every Qt Core program.
int main(int argc, char** argv) { const QCoreApplication application(argc, argv); }
