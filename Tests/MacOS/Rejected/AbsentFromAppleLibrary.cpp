// rejects: no type named 'jthread' in namespace 'std'
#include <thread>

std::jthread start();
