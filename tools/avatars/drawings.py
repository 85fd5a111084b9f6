"""The avatars: each function draws one, and its name is the avatar's key."""

import math

INK = (40, 44, 60)
WHITE = (255, 255, 255)
BLUSH = (250, 160, 150)


def _eyes(c, y, spread=13, size=5.5, x=48):
    for eye in (x - spread, x + spread):
        c.circle(eye, y, size, INK)
        c.circle(eye + size * 0.3, y - size * 0.35, size * 0.38, WHITE)


def _big_eyes(c, y, spread=13, size=11, x=48):
    for eye in (x - spread, x + spread):
        c.circle(eye, y, size, WHITE)
        c.circle(eye, y + 0.5, size * 0.58, INK)
        c.circle(eye + size * 0.2, y - size * 0.2, size * 0.22, WHITE)


def _smile(c, y, width=9, x=48):
    c.arc(x, y, width, 25, 155, 3, INK)


def _cheeks(c, y, spread=24, size=5, x=48):
    for cheek in (x - spread, x + spread):
        c.ellipse(cheek, y, size, size * 0.7, BLUSH)


def _triangle_ears(c, outer, inner):
    for side in (-1, 1):
        c.polygon([(48 + side * 38, 8), (48 + side * 8, 24), (48 + side * 36, 48)], outer)
        c.polygon([(48 + side * 34, 16), (48 + side * 17, 26), (48 + side * 33, 40)], inner)


def fuchs(c):
    orange, cream = (236, 122, 42), (255, 240, 222)
    _triangle_ears(c, orange, (90, 50, 40))
    c.polygon([(8, 42), (30, 24), (66, 24), (88, 42), (70, 76), (48, 92), (26, 76)], orange)
    c.polygon([(9, 44), (42, 62), (48, 92), (26, 76)], cream)
    c.polygon([(87, 44), (54, 62), (48, 92), (70, 76)], cream)
    _eyes(c, 48, 16)
    c.ellipse(48, 84, 7, 5.5, INK)


def katze(c):
    grey = (150, 160, 178)
    _triangle_ears(c, grey, BLUSH)
    c.ellipse(48, 54, 40, 34, grey)
    for x in (38, 48, 58):
        c.line([(x, 22), (x, 32)], 4, (110, 120, 140))
    _big_eyes(c, 50, 17, 9)
    c.polygon([(43, 62), (53, 62), (48, 68)], (236, 110, 120))
    for x in (42.5, 53.5):
        c.arc(x, 68, 5.5, 10, 170, 2.5, INK)
    for side in (-1, 1):
        for dy in (-3, 4):
            c.line([(48 + side * 24, 66 + dy / 2), (48 + side * 44, 64 + dy)], 2, INK)


def hund(c):
    brown, dark = (214, 164, 108), (132, 84, 48)
    c.ellipse(48, 50, 34, 38, brown)
    c.ellipse(48, 68, 20, 18, (250, 232, 206))
    c.ellipse(64, 42, 13, 15, dark, 12)
    c.ellipse(12, 46, 11, 28, dark, 14)
    c.ellipse(84, 46, 11, 28, dark, -14)
    _eyes(c, 43, 15)
    c.ellipse(48, 58, 8, 6, INK)
    c.line([(48, 62), (48, 68)], 2.5, INK)
    c.ellipse(48, 79, 6, 8, (236, 96, 110))
    c.arc(48, 62, 12, 25, 155, 3, INK)


def baer(c):
    brown, light = (150, 98, 62), (226, 186, 142)
    for x in (18, 78):
        c.circle(x, 22, 15, brown)
        c.circle(x, 22, 8, light)
    c.ellipse(48, 52, 39, 37, brown)
    c.ellipse(48, 66, 19, 15, light)
    _eyes(c, 46, 16)
    c.ellipse(48, 59, 7, 5, INK)
    _smile(c, 64, 8)


def panda(c):
    for x in (17, 79):
        c.circle(x, 20, 14, INK)
    c.ellipse(48, 52, 40, 36, (176, 182, 194))
    c.ellipse(48, 52, 38, 34, WHITE)
    c.ellipse(31, 48, 10, 13, INK, 28)
    c.ellipse(65, 48, 10, 13, INK, -28)
    for x in (33, 63):
        c.circle(x, 47, 4.5, WHITE)
        c.circle(x, 47.5, 2.4, INK)
    c.ellipse(48, 62, 6, 4.5, INK)
    _smile(c, 65, 8)


def hase(c):
    white, shade = (246, 244, 248), (206, 204, 218)
    for x, turn in ((32, -8), (64, 8)):
        c.ellipse(x, 26, 12, 26, shade, turn)
        c.ellipse(x, 27, 10, 24, white, turn)
        c.ellipse(x, 29, 5, 17, BLUSH, turn)
    c.ellipse(48, 64, 33, 30, shade)
    c.ellipse(48, 64, 31, 28, white)
    _eyes(c, 58, 14)
    _cheeks(c, 70, 21)
    c.ellipse(48, 67, 5, 3.8, (236, 110, 120))
    c.box(43, 74, 53, 84, shade, 2)
    c.box(44.5, 75, 47.5, 83, WHITE)
    c.box(48.5, 75, 51.5, 83, WHITE)


def eule(c):
    brown, light, beak = (122, 88, 140), (226, 208, 232), (250, 180, 50)
    c.polygon([(14, 6), (40, 22), (16, 40)], brown)
    c.polygon([(82, 6), (56, 22), (80, 40)], brown)
    c.ellipse(48, 54, 38, 39, brown)
    c.ellipse(48, 70, 22, 20, light)
    for x, y in ((40, 68), (56, 68), (48, 76), (34, 78), (62, 78)):
        c.arc(x, y, 5, 20, 160, 2.5, brown)
    c.circle(31, 42, 19, light)
    c.circle(65, 42, 19, light)
    _big_eyes(c, 42, 17, 14)
    c.polygon([(41, 50), (55, 50), (48, 63)], beak)


def pinguin(c):
    dark, beak = (44, 62, 98), (252, 170, 48)
    c.ellipse(48, 50, 38, 42, dark)
    c.ellipse(34, 46, 18, 20, WHITE)
    c.ellipse(62, 46, 18, 20, WHITE)
    c.ellipse(48, 66, 28, 24, WHITE)
    _eyes(c, 44, 14)
    c.polygon([(36, 56), (60, 56), (48, 68)], beak)
    _cheeks(c, 62, 23)


def frosch(c):
    green, dark = (112, 190, 78), (70, 140, 54)
    for x in (25, 71):
        c.circle(x, 24, 17, green)
    c.ellipse(48, 58, 42, 32, green)
    _big_eyes(c, 24, 23, 12)
    c.arc(48, 50, 26, 25, 155, 4, dark)
    for x in (42, 54):
        c.circle(x, 52, 2, dark)
    _cheeks(c, 62, 33, 6)


def loewe(c):
    mane, fur = (190, 104, 40), (250, 196, 92)
    for i in range(14):
        a = math.radians(i * 360 / 14)
        c.circle(48 + 34 * math.cos(a), 48 + 34 * math.sin(a), 12, mane)
    c.circle(48, 48, 34, mane)
    for x in (24, 72):
        c.circle(x, 25, 9, fur)
    c.ellipse(48, 50, 29, 28, fur)
    c.ellipse(48, 61, 14, 11, (255, 232, 184))
    _eyes(c, 45, 13)
    c.polygon([(41, 54), (55, 54), (48, 61)], INK)
    _smile(c, 60, 8)


def koala(c):
    grey, light = (142, 152, 166), (214, 220, 228)
    for x in (18, 78):
        c.circle(x, 34, 18, grey)
        c.circle(x, 35, 11, light)
    c.ellipse(48, 54, 34, 35, grey)
    _eyes(c, 46, 17)
    c.ellipse(48, 58, 9, 13, INK)
    c.arc(48, 68, 9, 25, 155, 3, INK)
    _cheeks(c, 64, 24)


def wal(c):
    blue, light = (70, 142, 206), (214, 236, 250)
    c.polygon([(74, 54), (80, 26), (64, 14), (82, 18), (92, 8), (94, 28), (88, 60)], blue)
    c.ellipse(44, 60, 40, 30, blue)
    c.polygon([(8, 72), (64, 74), (78, 74), (66, 84), (44, 90), (20, 84)], light)
    c.circle(24, 56, 5, INK)
    c.circle(25.5, 54.5, 1.9, WHITE)
    c.arc(24, 62, 12, 20, 110, 3, INK)
    for x1, x2 in ((36, 26), (36, 46)):
        c.line([(36, 28), ((x1 + x2) / 2, 12), (x2, 18)], 4, (140, 204, 240))


def krake(c):
    purple, dark = (178, 96, 190), (138, 62, 156)
    for i, x in enumerate((14, 31, 48, 65, 82)):
        c.line([(48 + (x - 48) * 0.6, 58), (x, 76), (x + (5 if i % 2 else -5), 88)], 12, dark if i % 2 else purple)
    c.ellipse(48, 42, 35, 37, purple)
    _big_eyes(c, 44, 14, 10)
    _smile(c, 57, 8)
    for x, y, r in ((28, 22, 4), (38, 14, 3), (66, 20, 5)):
        c.circle(x, y, r, (206, 140, 214))


def marienkaefer(c):
    red = (222, 54, 48)
    for side in (-1, 1):
        c.line([(48 + side * 10, 22), (48 + side * 20, 6)], 3, INK)
        c.circle(48 + side * 20, 7, 4, INK)
    c.circle(48, 30, 22, INK)
    c.ellipse(48, 58, 38, 33, red)
    c.polygon([(46, 30), (50, 30), (50, 92), (46, 92)], INK)
    for x, y, r in ((26, 50, 7), (70, 50, 7), (32, 74, 6), (64, 74, 6)):
        c.circle(x, y, r, INK)
    for x in (39, 57):
        c.circle(x, 24, 7, WHITE)
        c.circle(x, 25, 3.6, INK)


def roboter(c):
    steel, dark, glow = (150, 176, 196), (88, 112, 134), (88, 222, 214)
    c.line([(48, 20), (48, 8)], 4, dark)
    c.circle(48, 8, 6, (240, 84, 76))
    for x in (6, 78):
        c.box(x, 42, x + 12, 66, dark, 4)
    c.box(12, 18, 84, 88, steel, 12)
    c.box(20, 30, 76, 58, INK, 10)
    for x in (35, 61):
        c.circle(x, 44, 8, glow)
        c.circle(x + 2, 42, 2.6, WHITE)
    c.box(28, 68, 68, 80, dark, 5)
    for x in (34, 43, 52, 61):
        c.box(x, 70, x + 3, 78, WHITE)


def kolben(c):
    glass, liquid = (206, 230, 242), (64, 186, 146)
    c.box(38, 4, 58, 12, (150, 186, 206), 3)
    c.polygon([(41, 10), (55, 10), (55, 36), (88, 80), (84, 92), (12, 92), (8, 80), (41, 36)], (150, 186, 206))
    c.polygon([(44, 12), (52, 12), (52, 38), (83, 80), (81, 88), (15, 88), (13, 80), (44, 38)], glass)
    c.polygon([(32, 54), (64, 54), (83, 80), (81, 88), (15, 88), (13, 80)], liquid)
    for x, y, r in ((46, 46, 3), (50, 30, 2.5), (47, 20, 2)):
        c.circle(x, y, r, liquid)
    _eyes(c, 68, 13)
    _smile(c, 74, 8)


def reagenzglas(c):
    glass, liquid = (206, 230, 242), (238, 96, 148)
    c.box(24, 4, 72, 14, (150, 186, 206), 4)
    c.box(28, 8, 68, 94, (150, 186, 206), 19)
    c.box(32, 14, 64, 90, glass, 15)
    c.box(32, 40, 64, 90, liquid, 15)
    c.box(32, 40, 64, 60, liquid)
    for x, y, r in ((40, 30, 4), (54, 24, 3), (48, 34, 2.5)):
        c.circle(x, y, r, liquid)
    _eyes(c, 58, 8, 4.5)
    c.arc(48, 66, 6, 25, 155, 3, INK)


def atom(c):
    for turn, colour in ((0, (64, 140, 214)), (60, (240, 150, 40)), (120, (110, 180, 70))):
        points = []
        a = math.radians(turn)
        for i in range(49):
            t = 2 * math.pi * i / 48
            x, y = 43 * math.cos(t), 17 * math.sin(t)
            points.append((48 + x * math.cos(a) - y * math.sin(a), 48 + x * math.sin(a) + y * math.cos(a)))
        c.line(points, 4, colour)
        c.circle(*points[5], 6, colour)
    c.circle(48, 48, 22, (222, 66, 74))
    _eyes(c, 45, 8, 4.5)
    c.arc(48, 50, 7, 25, 155, 3, INK)


def planet(c):
    body, ring = (242, 182, 96), (160, 120, 200)
    c.ellipse(48, 50, 46, 14, ring, -18)
    c.ellipse(48, 50, 37, 8, (214, 190, 236), -18)
    c.circle(48, 48, 30, body)
    c.ellipse(40, 32, 16, 5, (250, 210, 140), -18)
    c.ellipse(56, 70, 14, 4, (224, 150, 70), -18)
    _eyes(c, 44, 11)
    _smile(c, 50, 7)
    lower = [(48 + 46 * math.cos(t) * 0.951 + 14 * math.sin(t) * 0.309, 50 - 46 * math.cos(t) * 0.309 + 14 * math.sin(t) * 0.951)
             for t in (math.radians(d) for d in range(18, 163, 6))]
    c.line(lower, 5, ring)


def mond(c):
    body, shade = (250, 226, 130), (228, 196, 92)
    c.circle(48, 48, 41, shade)
    c.circle(47, 46, 39, body)
    for x, y, r in ((28, 28, 7), (70, 30, 5), (74, 62, 8), (26, 70, 6), (52, 80, 4)):
        c.circle(x, y, r, shade)
    for x in (35, 61):
        c.arc(x, 46, 7, 20, 160, 3.5, INK)
    _smile(c, 58, 9)
    _cheeks(c, 58, 24)


def sonne(c):
    ray, body = (250, 160, 40), (255, 214, 70)
    for i in range(12):
        a = math.radians(i * 30)
        s, e = math.radians(i * 30 - 12), math.radians(i * 30 + 12)
        c.polygon([(48 + 47 * math.cos(a), 48 + 47 * math.sin(a)),
                   (48 + 30 * math.cos(s), 48 + 30 * math.sin(s)),
                   (48 + 30 * math.cos(e), 48 + 30 * math.sin(e))], ray)
    c.circle(48, 48, 31, body)
    _eyes(c, 44, 12)
    _cheeks(c, 54, 20)
    _smile(c, 52, 9)


def rakete(c):
    body, red, shade = (240, 244, 248), (224, 64, 60), (178, 194, 210)
    c.polygon([(36, 76), (60, 76), (48, 96)], (252, 176, 44))
    c.polygon([(30, 50), (10, 76), (12, 86), (34, 74)], red)
    c.polygon([(66, 50), (86, 76), (84, 86), (62, 74)], red)
    c.polygon([(48, 2), (66, 24), (71, 50), (62, 80), (34, 80), (25, 50), (30, 24)], shade)
    c.polygon([(48, 2), (63, 24), (67, 50), (59, 80), (34, 80), (27, 50), (32, 24)], body)
    c.polygon([(48, 2), (64, 22), (32, 22)], red)
    c.circle(48, 46, 17, (80, 120, 160))
    c.circle(48, 46, 14, (178, 224, 246))
    _eyes(c, 44, 6, 3.6)
    c.arc(48, 48, 5.5, 25, 155, 2.5, INK)


def apfel(c):
    red, light = (220, 52, 52), (246, 128, 112)
    c.line([(48, 28), (52, 8)], 5, (110, 74, 44))
    c.ellipse(66, 14, 14, 7, (104, 176, 66), -20)
    c.ellipse(34, 58, 26, 33, red)
    c.ellipse(62, 58, 26, 33, red)
    c.ellipse(22, 46, 5, 10, light, 20)
    _eyes(c, 56, 13)
    _smile(c, 64, 9)


def birne(c):
    green, light = (176, 202, 62), (216, 232, 120)
    c.line([(48, 18), (53, 4)], 5, (110, 74, 44))
    c.ellipse(66, 9, 12, 6, (84, 156, 60), -10)
    c.ellipse(48, 32, 20, 22, green)
    c.ellipse(48, 64, 35, 30, green)
    c.polygon([(30, 34), (66, 34), (80, 56), (16, 56)], green)
    c.ellipse(26, 60, 5, 12, light, 20)
    _eyes(c, 60, 13)
    _cheeks(c, 70, 23)
    _smile(c, 68, 8)


def orange(c):
    body, light = (250, 152, 36), (255, 196, 104)
    c.circle(48, 54, 38, body)
    c.ellipse(27, 36, 9, 5, light, -40)
    c.ellipse(62, 14, 15, 7, (84, 156, 60), -14)
    c.circle(48, 18, 4, (110, 74, 44))
    for x, y in ((24, 70), (72, 72), (50, 84), (70, 36)):
        c.circle(x, y, 2, (228, 124, 20))
    _big_eyes(c, 50, 14, 10)
    _smile(c, 64, 9)


def erdbeere(c):
    red, seed, leaf = (228, 50, 76), (255, 214, 120), (84, 166, 70)
    c.polygon([(12, 34), (24, 20), (72, 20), (84, 34), (78, 62), (48, 94), (18, 62)], red)
    c.circle(24, 36, 14, red)
    c.circle(72, 36, 14, red)
    for x in (20, 34, 48, 62, 76):
        c.polygon([(x - 11, 18), (x + 11, 18), (x, 34)], leaf)
    c.box(16, 12, 80, 20, leaf, 4)
    c.line([(48, 14), (48, 4)], 5, leaf)
    for x, y in ((22, 44), (74, 44), (30, 66), (66, 66), (48, 82), (48, 40)):
        c.ellipse(x, y, 1.8, 2.8, seed)
    _eyes(c, 52, 13)
    _smile(c, 60, 8)


def kaktus(c):
    green, dark, pot = (84, 164, 92), (56, 126, 68), (206, 112, 66)
    c.line([(20, 34), (20, 50), (36, 54)], 13, green)
    c.line([(76, 26), (76, 44), (60, 48)], 13, green)
    c.box(29, 10, 67, 80, green, 19)
    for x in (38, 58):
        c.line([(x, 20), (x, 30)], 2.5, dark)
    c.circle(48, 10, 8, (246, 118, 160))
    c.circle(48, 10, 3.5, (255, 214, 90))
    _eyes(c, 44, 9, 4.5)
    c.arc(48, 50, 7, 25, 155, 3, INK)
    c.polygon([(24, 72), (72, 72), (66, 94), (30, 94)], pot)
    c.box(20, 66, 76, 76, (226, 138, 88), 3)


def pilz(c):
    red, stem = (218, 60, 56), (250, 236, 212)
    c.box(28, 46, 68, 92, (224, 204, 172), 16)
    c.box(30, 44, 66, 90, stem, 15)
    c.polygon([(4, 52), (10, 26), (28, 9), (48, 5), (68, 9), (86, 26), (92, 52), (76, 57), (20, 57)], red)
    for x, y, r in ((26, 34, 8), (50, 20, 8), (72, 38, 7), (48, 44, 5)):
        c.circle(x, y, r, WHITE)
    _eyes(c, 68, 9, 4.5)
    _cheeks(c, 76, 13, 3.5)
    c.arc(48, 73, 6, 25, 155, 3, INK)


def wolke(c):
    white, shade = (250, 252, 255), (172, 196, 224)
    for inset, colour in ((0, shade), (2.5, white)):
        for x, y, r in ((24, 56, 20), (44, 38, 26), (70, 52, 22), (48, 62, 20)):
            c.circle(x, y, r - inset, colour)
    c.box(24, 58, 70, 73.5, white, 6)
    _eyes(c, 50, 13)
    _cheeks(c, 60, 22)
    _smile(c, 56, 8)
    for x in (26, 48, 70):
        c.line([(x, 82), (x - 3, 90)], 4.5, (80, 156, 226))


def diamant(c):
    light, middle, dark = (176, 236, 246), (104, 206, 228), (58, 164, 200)
    c.polygon([(24, 14), (72, 14), (94, 40), (48, 92), (2, 40)], middle)
    c.polygon([(24, 14), (36, 40), (2, 40)], light)
    c.polygon([(36, 40), (60, 40), (72, 14), (24, 14)], (140, 224, 240))
    c.polygon([(72, 14), (94, 40), (60, 40)], dark)
    c.polygon([(2, 40), (36, 40), (48, 92)], (128, 216, 236))
    c.polygon([(94, 40), (60, 40), (48, 92)], dark)
    _eyes(c, 46, 12)
    _smile(c, 53, 8)


ALL = (
    fuchs, katze, hund, baer, panda, hase, eule, pinguin, frosch, loewe, koala, wal, krake, marienkaefer,
    roboter, kolben, reagenzglas, atom, planet, mond, sonne, rakete,
    apfel, birne, orange, erdbeere, kaktus, pilz, wolke, diamant,
)
