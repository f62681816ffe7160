set -g _HIP_SAVEVERSION = '19.5.303'
out/opengl1.parm {
picture	[ 0	locks=0 ]	(	"$HIP/render/gl.$F4.jpg"	)
}
out/geo1.parm {
sopoutput	[ 0	locks=0 ]	(	"$HIP/geo/geo.$F4.bgeo"	)
}
out/file1.parm {
file	[ 0	locks=0 ]	(	"$HIP/geo/f.$F4.bgeo"	)
}
out/comp1.parm {
copoutput	[ 0	locks=0 ]	(	"$HIP/comp/comp.$F4.png"	)
}
out/rs1.parm {
RS_outputFileNamePrefix	[ 0	locks=0 ]	(	"$HIP/render/rs.$F4.exr"	)
}
out/ris1.parm {
ri_display_0	[ 0	locks=0 ]	(	"$HIP/render/ris.$F4.exr"	)
}
out/vray1.parm {
SettingsOutput_img_file_path	[ 0	locks=0 ]	(	"$HIP/render/vr.$F4.exr"	)
}
out/mixed1.parm {
picture	[ 0	locks=0 ]	(	"$HIP/render/mixgl.$F4.exr"	)
ar_picture	[ 0	locks=0 ]	(	"$HIP/render/mixar.$F4.exr"	)
}
