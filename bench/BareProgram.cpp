#include <QCoreApplication>

/// What every Qt Core program costs.
int main(int argc, char** argv) { const QCoreApplication application(argc, argv); }
