#pragma once

typedef unsigned int __sigset_t;
