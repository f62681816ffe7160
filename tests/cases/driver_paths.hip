set -g _HIP_SAVEVERSION = '19.5.303'
obj/geo1/rop_geometry1.parm {
sopoutput	[ 0	locks=0 ]	(	"$HIP/geo/$OS.$F4.bgeo"	)
}
stage/karma1.parm {
picture	[ 0	locks=0 ]	(	"$HIP/render/$OS.$F4.exr"	)
}
img/comp/rop_comp1.parm {
copoutput	[ 0	locks=0 ]	(	"$HIP/comp/$OS.$F4.png"	)
}
