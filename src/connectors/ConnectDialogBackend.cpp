#include "ConnectDialogBackend.h"

#include "ConnectionManager.h"

void ConnectDialogBackend::loadConnection(int index)
{
    m_connection = ConnectionManager::getInstance()->getConnection(index);
}
