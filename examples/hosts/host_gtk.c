/* A host with windows, in GTK 3: its user makes an effect in dialogs on top of its window and sees what it gives the
 * page.
 *
 *     cc -std=gnu11 host_gtk.c $(pkg-config --cflags --libs VignelOrrelix gtk+-3.0)
 */
#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <vignel_server.h>

enum { SHOWN_LINES = 12 };

static VignelResult Create(VignelDispatch** ppObject) {
    char path[VIGNEL_PATH_SIZE];
    void* pLibrary;
    if (!VignelFindLibrary("VignelServer.Orrelix", path, sizeof path) || !(pLibrary = VignelLoad(path)))
        return VIGNEL_E_CLASSNOTREG;
    return VignelCreate(pLibrary, &VignelClsidOrrelix, ppObject);
}

/* Where the dialogs belong: the window's number. Only X11 has one; elsewhere they stand beside the window. */
static void SetOwner(VignelDispatch* pObject, GtkWidget* pWindow) {
    GdkWindow* pShown = gtk_widget_get_window(pWindow);
    void* pInspector = NULL;
    if (GDK_IS_X11_WINDOW(pShown) &&
        pObject->lpVtbl->QueryInterface(pObject, &VignelIidInspector, &pInspector) == VIGNEL_S_OK) {
        char number[24];
        VignelVariant owner = {.vt = VIGNEL_BSTR};
        owner.bstrVal = VignelFromUtf8(
            number, (size_t)g_snprintf(number, sizeof number, "%lu", gdk_x11_window_get_xid(pShown)));
        VignelCall(pInspector, "OwnerWindow", VIGNEL_PUT, &owner, 1, NULL, NULL);
        VignelClearVariant(&owner);
        VIGNEL_RELEASE((VignelDispatch*)pInspector);
    }
}

static void ShowHtml(VignelDispatch* pObject, GtkLabel* pLabel) {
    VignelVariant place[] = {{.vt = VIGNEL_I4, .lVal = 0}, {.vt = VIGNEL_I4, .lVal = 1}};
    VignelVariant body = {.vt = VIGNEL_EMPTY};
    if (VignelCall(pObject, "GetHTMLBody", VIGNEL_METHOD, place, 2, &body, NULL) >= 0) {
        char* pText = VignelToUtf8(body.bstrVal, NULL);
        char* pEnd = pText;
        int nLine;
        for (nLine = 0; pEnd && nLine < SHOWN_LINES; ++nLine)
            pEnd = strchr(nLine ? pEnd + 1 : pEnd, '\n');
        if (pEnd)
            *pEnd = 0;
        gtk_label_set_text(pLabel, pText ? pText : "");
        free(pText);
    }
    VignelClearVariant(&body);
}

/* The dialogs don't keep a window of another toolkit from its user, so the host does. */
static void MakeEffect(GtkWidget* pButton, gpointer pLabel) {
    GtkWidget* pWindow = gtk_widget_get_toplevel(pButton);
    VignelVariant bMade = {.vt = VIGNEL_EMPTY};
    VignelDispatch* pObject;
    if (Create(&pObject) < 0) {
        gtk_label_set_text(pLabel, "VignelServer.Orrelix isn't there.");
        return;
    }
    SetOwner(pObject, pWindow);
    gtk_widget_set_sensitive(pWindow, FALSE);
    VignelCall(pObject, "Config", VIGNEL_METHOD, NULL, 0, &bMade, NULL);
    gtk_widget_set_sensitive(pWindow, TRUE);
    gtk_widget_grab_focus(pButton);
    if (bMade.boolVal)
        ShowHtml(pObject, pLabel);
    VIGNEL_RELEASE(pObject);
}

/* A window that waits for its dialog stays. */
static gboolean RefuseToClose(GtkWidget* pWindow) {
    return !gtk_widget_get_sensitive(pWindow);
}

int main(int nArguments, char** ppArguments) {
    GtkWidget *pWindow, *pBox, *pButton, *pLabel;
    gtk_init(&nArguments, &ppArguments);
    pWindow = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    pBox = gtk_box_new(GTK_ORIENTATION_VERTICAL, 8);
    pButton = gtk_button_new_with_label("Make an effect…");
    pLabel = gtk_label_new("");
    gtk_label_set_selectable(GTK_LABEL(pLabel), TRUE);
    gtk_window_set_title(GTK_WINDOW(pWindow), "A host in GTK");
    gtk_window_set_default_size(GTK_WINDOW(pWindow), 640, 320);
    gtk_container_add(GTK_CONTAINER(pWindow), pBox);
    gtk_box_pack_start(GTK_BOX(pBox), pButton, FALSE, FALSE, 0);
    gtk_box_pack_start(GTK_BOX(pBox), pLabel, TRUE, TRUE, 0);
    g_signal_connect(pButton, "clicked", G_CALLBACK(MakeEffect), pLabel);
    g_signal_connect(pWindow, "delete-event", G_CALLBACK(RefuseToClose), NULL);
    g_signal_connect(pWindow, "destroy", G_CALLBACK(gtk_main_quit), NULL);
    gtk_widget_show_all(pWindow);
    gtk_main();
    return 0;
}
