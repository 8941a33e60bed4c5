#include "FileTransferService.h"
