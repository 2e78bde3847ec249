Name tile
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 4
0 0 0
1 0 0
1 1 0
0 1 0.5
Texture Vertices 0
Faces 0
END
