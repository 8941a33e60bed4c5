#include "UploadSpool.h"
