#include "FileMessage.h"
