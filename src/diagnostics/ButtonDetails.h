#pragma once

/// The end of a SELECT: buttons with their groups.
#define BUTTON_DETAILS                                                                             \
    "tButtonName, tButtonDesc, tName AS tGroupName, tDesc AS tGroupDesc FROM tblButtons "          \
    "INNER JOIN tblListItems ON tblButtons.lParentID = tblListItems.ID"
