#include "ClipboardSharing.h"
