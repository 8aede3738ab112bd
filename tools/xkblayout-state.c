/*
 * xkblayout-state: prints the keyboard layout that is active on the X server.
 *
 *   xkblayout-state print FORMAT
 *
 * FORMAT is printed with these replaced:  %s layout code ("us"),  %v its variant,  %n the group's
 * name as the keymap gives it ("English (US)"),  %c the group number (0-based),  %% a percent sign.
 * The layouts come from the _XKB_RULES_NAMES property that setxkbmap leaves on the root window and
 * the active group from the XKB state. Nothing is printed when the server has no XKB or no layout
 * list; the exit status is then 1.
 */
#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* Field `index` (0-based) of a comma-separated list, copied into out. */
static void list_item(const char *list, int index, char *out, size_t size)
{
    out[0] = '\0';
    if (!list)
        return;
    const char *start = list;
    for (int i = 0; i < index; ++i) {
        start = strchr(start, ',');
        if (!start)
            return;
        ++start;
    }
    size_t len = strcspn(start, ",");
    if (len >= size)
        len = size - 1;
    memcpy(out, start, len);
    out[len] = '\0';
}

/* The rules names: rules, model, layout, variant, options, each terminated by a NUL. */
static int read_rules_names(Display *display, char **layout, char **variant, unsigned char **data)
{
    Atom property = XInternAtom(display, "_XKB_RULES_NAMES", True);
    if (property == None)
        return 0;
    Atom type;
    int format;
    unsigned long count, after;
    if (XGetWindowProperty(display, DefaultRootWindow(display), property, 0, 1024, False, XA_STRING, &type,
                           &format, &count, &after, data) != Success || !*data || format != 8)
        return 0;
    const char *fields[5] = {0};
    unsigned long pos = 0;
    for (int i = 0; i < 5 && pos < count; ++i) {
        fields[i] = (const char *)*data + pos;
        pos += strnlen(fields[i], count - pos) + 1;
    }
    *layout = (char *)fields[2];
    *variant = (char *)fields[3];
    return *layout && **layout;
}

int main(int argc, char **argv)
{
    if (argc != 3 || strcmp(argv[1], "print") != 0) {
        fprintf(stderr, "usage: %s print FORMAT\n", argv[0]);
        return 2;
    }
    int event, error, major = XkbMajorVersion, minor = XkbMinorVersion, reason;
    Display *display = XkbOpenDisplay(NULL, &event, &error, &major, &minor, &reason);
    if (!display) {
        fprintf(stderr, "xkblayout-state: cannot open the display (XKB reason %d)\n", reason);
        return 1;
    }
    XkbStateRec state;
    if (XkbGetState(display, XkbUseCoreKbd, &state) != Success) {
        XCloseDisplay(display);
        return 1;
    }
    unsigned char *data = NULL;
    char *layouts = NULL, *variants = NULL;
    if (!read_rules_names(display, &layouts, &variants, &data)) {
        if (data)
            XFree(data);
        XCloseDisplay(display);
        return 1;
    }
    char code[64], variant[64], name[256] = "";
    list_item(layouts, state.group, code, sizeof code);
    list_item(variants, state.group, variant, sizeof variant);

    XkbDescPtr keyboard = XkbAllocKeyboard();
    if (keyboard && XkbGetNames(display, XkbGroupNamesMask, keyboard) == Success && keyboard->names
        && keyboard->names->groups[state.group] != None) {
        char *atom = XGetAtomName(display, keyboard->names->groups[state.group]);
        if (atom) {
            snprintf(name, sizeof name, "%s", atom);
            XFree(atom);
        }
    }
    if (keyboard)
        XkbFreeKeyboard(keyboard, 0, True);

    for (const char *p = argv[2]; *p; ++p) {
        if (*p != '%' || !p[1]) {
            putchar(*p);
            continue;
        }
        switch (*++p) {
        case 's': fputs(code, stdout); break;
        case 'v': fputs(variant, stdout); break;
        case 'n': fputs(name, stdout); break;
        case 'c': printf("%d", state.group); break;
        case '%': putchar('%'); break;
        default: putchar('%'); putchar(*p); break;
        }
    }
    XFree(data);
    XCloseDisplay(display);
    return code[0] ? 0 : 1;
}
