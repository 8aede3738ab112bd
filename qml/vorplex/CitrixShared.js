.pragma library

// True while a form's resource browser owns the Citrix connector's signals, so that the
// launch progress popup stays closed during the browse.
var browsing = false;
