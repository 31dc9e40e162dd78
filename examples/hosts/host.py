"""A host in Python: host.py [CONFIGURATION FILE [NEW FILE]]. It finds the component, says what it is called, reads a
file, lists what a page needs of it and writes it anew. Where there is a screen and no file, its user makes an effect."""
import configparser, os, pathlib, sys
import ctypes as c
from uuid import UUID

CATEGORY = "{2542EDC1-7EFB-11D2-8CA5-0088CC081531}"
INSPECTOR = UUID("{5D0A7C4E-1B52-4E0B-9C37-2A61D48F1360}").bytes_le
FACTORY = UUID("{00000001-0000-0000-C000-000000000046}").bytes_le
DISPATCH = UUID("{00020400-0000-0000-C000-000000000046}").bytes_le
METHOD, GET, PUT, I4, BSTR = 1, 2, 4, 3, 8
SYSTEM = c.CDLL(None)
SYSTEM.malloc.restype, SYSTEM.malloc.argtypes, SYSTEM.free.argtypes = c.c_void_p, [c.c_size_t], [c.c_void_p]


class Variant(c.Structure):
    _fields_ = [("kind", c.c_uint16), ("reserved", c.c_uint16 * 3), ("value", c.c_int64), ("second", c.c_int64)]


class Arguments(c.Structure):
    _fields_ = [("values", c.POINTER(Variant)), ("names", c.POINTER(c.c_int32)), ("count", c.c_uint32),
                ("name_count", c.c_uint32)]


def new_string(text):  # eight bytes in front, of which the last four are the length
    units = text.encode("utf-16-le", "surrogatepass")
    block = SYSTEM.malloc(len(units) + 10)
    c.memmove(block, bytes(4) + len(units).to_bytes(4, sys.byteorder) + units + bytes(2), len(units) + 10)
    return block + 8


def take_string(text):
    units = c.string_at(text, c.c_uint32.from_address(text - 4).value) if text else b""
    SYSTEM.free(text - 8 if text else None)
    return units.decode("utf-16-le", "surrogatepass")


class Object:
    def __init__(self, pointer):
        self.pointer = pointer

    def function(self, place, *types):
        table = c.cast(c.c_void_p.from_address(self.pointer).value, c.POINTER(c.c_void_p))
        return lambda *values: c.CFUNCTYPE(c.c_int32, c.c_void_p, *types)(table[place])(self.pointer, *values)

    def call(self, name, *values, kind=METHOD):
        text, member, result = c.c_void_p(new_string(name)), c.c_int32(), Variant()
        self.function(5, *[c.c_void_p] * 2, c.c_uint32, c.c_uint32, c.c_void_p)(
            bytes(16), c.addressof(text), 1, 0, c.addressof(member))
        take_string(text.value)
        given = (Variant * len(values))(*[
            Variant(BSTR, value=new_string(value)) if isinstance(value, str) else Variant(I4, value=value)
            for value in reversed(values)])
        arguments = Arguments(given, c.pointer(c.c_int32(-3)), len(values), int(kind == PUT))
        code = self.function(6, c.c_int32, c.c_void_p, c.c_uint32, c.c_uint16, *[c.c_void_p] * 4)(
            member.value, bytes(16), 0, kind, c.addressof(arguments), c.addressof(result), None, None)
        for value in given:
            take_string(value.value if value.kind == BSTR else None)
        if code < 0:
            sys.exit(f"host: {name}: error 0x{code & 0xFFFFFFFF:08X}")
        return take_string(result.value) if result.kind == BSTR else result.value  # no number here is negative


def find():
    home = os.environ.get("XDG_CONFIG_HOME") or os.path.expanduser("~/.config")
    folders = [home] + (os.environ.get("XDG_CONFIG_DIRS") or "/etc/xdg").split(":")
    for file in [file for folder in folders for file in sorted(pathlib.Path(folder, "vignel").glob("*.ini"))]:
        registry = configparser.RawConfigParser(delimiters="=", strict=False)
        registry.read(file, encoding="utf-8")
        for key in [key for key in registry if key.endswith("\\Implemented Categories\\" + CATEGORY)]:
            clsid = key.split("\\")[1]
            return clsid, *[registry[f"CLSID\\{clsid}\\{name}"]["@"] for name in ("ProgID", "InProcServer32")]
    sys.exit("host: no component is registered")


clsid, progid, library = find()
print("component:", progid)
factory, dispatch, second = c.c_void_p(), c.c_void_p(), c.c_void_p()
c.CDLL(library).DllGetClassObject(UUID(clsid).bytes_le, FACTORY, c.byref(factory))
Object(factory.value).function(3, *[c.c_void_p] * 3)(None, DISPATCH, c.addressof(dispatch))
page = Object(dispatch.value)
page.function(0, *[c.c_void_p] * 2)(INSPECTOR, c.addressof(second))
inspector = Object(second.value)
print("name:", inspector.call("GetText", page.call("GetResourceInstance"), page.call("GetVignelNameID")))
page.call("Title", "news", kind=PUT)
if len(sys.argv) > 1 and not page.call("ReadConfigFile", sys.argv[1]):
    sys.exit(f"host: {sys.argv[1]} can't be read")
if len(sys.argv) == 1 and inspector.call("CanShowDialogs") and not page.call("Config"):
    sys.exit(1)  # cancelled
print("title:", page.call("Title", kind=GET))
for position in reversed(range(page.call("GetHTMLSegmentNumber"))):
    body = page.call("GetHTMLBody", position, 1).encode("utf-8", "surrogatepass")
    print(f"segment {page.call('GetHTMLPosition', position)}: {len(body)} bytes")
for index in range(page.call("GetResourceNumber")):
    print("resource:", page.call("GetResourceName", index))
if len(sys.argv) > 2 and not page.call("WriteConfigFile", sys.argv[2]):
    sys.exit(f"host: {sys.argv[2]} can't be written")
for held in (inspector, page, Object(factory.value)):
    held.function(2)()
