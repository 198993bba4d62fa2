#include "Orvello/Library/Script.h"
