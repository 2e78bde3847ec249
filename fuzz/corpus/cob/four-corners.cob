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
Texture Vertices 4
0 0
1 0
1 1
0 1
Faces 2
Face verts 4 flags 0 mat 0
<0,0> <1,1> <2,2>
Face verts 4 flags 0 mat 0
<0,0> <2,2> <3,3>
mat# 0
rgb 0.2,0.4,0.6
alpha 1 ka 0.5 ks 0.25 exp 3
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
END
